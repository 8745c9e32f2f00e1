#pragma once

#include <QtWidgets/QFrame>

#include "desktop/control_view.h"

namespace desktop {

/// A plain area in its own colour.
class PictureBoxView final : public QFrame, public ControlView {
public:
    PictureBoxView(forms::Control& box, QWidget& parent, ViewHost& host)
        : QFrame(&parent),
          ControlView(box, host) {}

    QWidget& widget() override { return *this; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool syncOwn() override { return false; }
};

}  // namespace desktop

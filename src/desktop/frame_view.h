#pragma once

#include <QtWidgets/QGroupBox>

#include "desktop/control_view.h"
#include "forms/controls.h"

namespace desktop {

/// A group of controls: a plate with round corners and its caption along the top.
class FrameView final : public QGroupBox, public ControlView {
public:
    FrameView(forms::Frame& frame, QWidget& parent, ViewHost& host);

    QWidget& widget() override { return *this; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool syncOwn() override;
    void lookChanged() override { setTitle(caption().trimmed()); }

    forms::Frame& frame_;
    bool hasBorder_ = true;
};

}  // namespace desktop

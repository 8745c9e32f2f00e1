#pragma once

#include <QtWidgets/QLabel>

#include "desktop/control_view.h"
#include "forms/controls.h"

namespace desktop {

/// A text. It passes the mouse on to what lies below.
class LabelView final : public QLabel, public ControlView {
public:
    LabelView(forms::Label& label, QWidget& parent, ViewHost& host);

    QWidget& widget() override { return *this; }
    [[nodiscard]] bool isLightweight() const override { return true; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool syncOwn() override;
    void lookChanged() override;

    forms::Label& label_;
    forms::Alignment alignment_ = forms::Alignment::Left;
};

}  // namespace desktop

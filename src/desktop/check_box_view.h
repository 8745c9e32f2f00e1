#pragma once

#include <QtWidgets/QCheckBox>

#include "desktop/control_view.h"
#include "forms/controls.h"

namespace desktop {

class CheckBoxView final : public QCheckBox, public ControlView {
public:
    CheckBoxView(forms::CheckBox& box, QWidget& parent, ViewHost& host);

    QWidget& widget() override { return *this; }

protected:
    void paintEvent(QPaintEvent* event) override;
    /// The model flips, and this follows.
    void nextCheckState() override;
    [[nodiscard]] bool hitButton(const QPoint& at) const override { return rect().contains(at); }

private:
    bool syncOwn() override;
    void lookChanged() override { setText(caption()); }

    forms::CheckBox& box_;
};

}  // namespace desktop

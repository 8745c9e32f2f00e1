#pragma once

#include <QtWidgets/QPushButton>

#include "desktop/control_view.h"
#include "forms/controls.h"

namespace desktop {

/// A flat push button in its own colour.
class ButtonView final : public QPushButton, public ControlView {
public:
    ButtonView(forms::CommandButton& button, QWidget& parent, ViewHost& host);

    QWidget& widget() override { return *this; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool syncOwn() override { return false; }
    void lookChanged() override { setText(caption().trimmed()); }
    void paintCaption(QPainter& painter, const QColor& ground);

    forms::CommandButton& button_;
};

/// The colour of a button's face while it is hovered, held down or disabled.
[[nodiscard]] QColor buttonFace(const QColor& own, bool enabled, bool hovered, bool down);

}  // namespace desktop

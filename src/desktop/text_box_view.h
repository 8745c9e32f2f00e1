#pragma once

#include <QtWidgets/QLineEdit>

#include "desktop/control_view.h"
#include "forms/controls.h"

namespace desktop {

class TextBoxView final : public QLineEdit, public ControlView {
public:
    TextBoxView(forms::TextBox& box, QWidget& parent, ViewHost& host);

    QWidget& widget() override { return *this; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool syncOwn() override;
    void lookChanged() override;

    forms::TextBox& box_;
    bool hasBorder_ = true;
};

}  // namespace desktop

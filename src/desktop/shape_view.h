#pragma once

#include <QtWidgets/QWidget>

#include "desktop/control_view.h"
#include "forms/controls.h"

namespace desktop {

/// A drawn rectangle. The mouse goes through it.
class ShapeView final : public QWidget, public ControlView {
public:
    ShapeView(forms::Shape& shape, QWidget& parent, ViewHost& host);

    QWidget& widget() override { return *this; }
    [[nodiscard]] bool isLightweight() const override { return true; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool syncOwn() override;

    forms::Shape& shape_;
    bool rounded_ = false;
};

}  // namespace desktop

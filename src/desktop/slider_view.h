#pragma once

#include <QtWidgets/QSlider>

#include "desktop/control_view.h"
#include "forms/controls.h"

namespace desktop {

class SliderView final : public QSlider, public ControlView {
public:
    SliderView(forms::Slider& slider, QWidget& parent, ViewHost& host);

    QWidget& widget() override { return *this; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool syncOwn() override;
    void paintTicks(QPainter& painter, const QRectF& track) const;
    [[nodiscard]] QRectF groove() const;
    [[nodiscard]] double shareAt(int position) const;

    struct Drawn {
        std::int32_t value = 0, minimum = 0, maximum = 0, smallChange = 0, largeChange = 0;
        std::int32_t tickFrequency = -1;
        bool operator==(const Drawn&) const = default;
    };

    forms::Slider& slider_;
    Drawn shown_;
};

}  // namespace desktop

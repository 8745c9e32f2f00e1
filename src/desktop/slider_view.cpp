#include "desktop/slider_view.h"

#include <QtCore/QSignalBlocker>

#include "desktop/button_view.h"
#include "desktop/looks.h"
#include "desktop/painting.h"

namespace desktop {

namespace {

constexpr double handleRadius = 7;

}  // namespace

SliderView::SliderView(forms::Slider& slider, QWidget& parent, ViewHost& host)
    : QSlider(slider.orientation == forms::Slider::Orientation::Vertical ? Qt::Vertical
                                                                         : Qt::Horizontal,
              &parent),
      ControlView(slider, host),
      slider_(slider) {
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    connect(this, &QSlider::valueChanged, this,
            [this](int value) { tell([this, value] { slider_.setValue(value); }); });
}

bool SliderView::syncOwn() {
    const Drawn now{slider_.value(),     slider_.minimum,     slider_.maximum,
                    slider_.smallChange, slider_.largeChange, slider_.tickFrequency};
    if (now == shown_ && now.value == value()) return false;
    shown_ = now;
    const QSignalBlocker quiet(this);
    setRange(now.minimum, now.maximum);
    setSingleStep(now.smallChange);
    setPageStep(now.largeChange);
    setTickInterval(now.tickFrequency);
    setValue(now.value);
    return true;
}

QRectF SliderView::groove() const {
    const QRectF all = rect();
    if (orientation() == Qt::Vertical) {
        return {all.center().x() - 2, handleRadius + 1, 4, all.height() - 2 * handleRadius - 2};
    }
    return {handleRadius + 1, all.center().y() - 2, all.width() - 2 * handleRadius - 2, 4};
}

double SliderView::shareAt(int position) const {
    return maximum() == minimum() ? 0
                                  : static_cast<double>(position - minimum()) /
                                        static_cast<double>(maximum() - minimum());
}

void SliderView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (look().back && !look().transparent) painter.fillRect(rect(), *look().back);
    const QColor& ground = look().ground;
    const QRectF track = groove();
    const double share = shareAt(sliderPosition());
    const bool upright = orientation() == Qt::Vertical;
    const QPointF handle =
        upright ? QPointF(track.center().x(), track.bottom() - share * track.height())
                : QPointF(track.left() + share * track.width(), track.center().y());
    QRectF filled = track;
    if (upright) {
        filled.setTop(handle.y());
    } else {
        filled.setRight(handle.x());
    }
    const QColor full =
        isEnabled() ? QColor(0x25, 0x63, 0xeb) : blend(ground, textColourOn(ground), 0.3);
    painter.setPen(Qt::NoPen);
    painter.setBrush(blend(ground, textColourOn(ground), 0.22));
    painter.drawRoundedRect(track, 2, 2);
    painter.setBrush(full);
    painter.drawRoundedRect(filled, 2, 2);
    paintTicks(painter, track);

    const QColor knob =
        buttonFace(QColor(0xe2, 0xe8, 0xf0), isEnabled(), underMouse(), isSliderDown());
    painter.setPen(QPen(full, 2));
    painter.setBrush(knob);
    painter.drawEllipse(handle, handleRadius - 1, handleRadius - 1);
    if (hasFocus()) {
        QRectF ring(0, 0, 2 * handleRadius + 4, 2 * handleRadius + 4);
        ring.moveCenter(handle);
        drawFocusRing(painter, ring, handleRadius + 2, ground);
    }
}

void SliderView::paintTicks(QPainter& painter, const QRectF& track) const {
    if (tickInterval() <= 0) return;
    painter.setPen(QPen(blend(look().ground, textColourOn(look().ground), 0.35), 1));
    for (int position = minimum(); position <= maximum(); position += tickInterval()) {
        const double share = shareAt(position);
        if (orientation() == Qt::Vertical) {
            const double y = track.bottom() - share * track.height();
            painter.drawLine(QPointF(track.right() + 6, y), QPointF(track.right() + 9, y));
        } else {
            const double x = track.left() + share * track.width();
            painter.drawLine(QPointF(x, track.bottom() + 6), QPointF(x, track.bottom() + 9));
        }
    }
}

}  // namespace desktop

#include "desktop/shape_view.h"

#include <utility>

#include "desktop/looks.h"
#include "desktop/painting.h"

namespace desktop {

ShapeView::ShapeView(forms::Shape& shape, QWidget& parent, ViewHost& host)
    : QWidget(&parent),
      ControlView(shape, host),
      shape_(shape) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

bool ShapeView::syncOwn() {
    return std::exchange(rounded_, shape_.rounded) != shape_.rounded;
}

void ShapeView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool filled = look().back && !look().transparent;
    painter.setBrush(filled ? QBrush(*look().back) : QBrush(Qt::NoBrush));
    painter.setPen(QPen(look().fore.value_or(accentOn(look().ground)), 2));
    const double radius = rounded_ ? 8 : 3;
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), radius, radius);
}

}  // namespace desktop

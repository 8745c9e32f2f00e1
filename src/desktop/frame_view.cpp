#include "desktop/frame_view.h"

#include <utility>

#include "desktop/looks.h"
#include "desktop/painting.h"

namespace desktop {

namespace {

/// So near the corner that the lines of a small frame still have room below.
constexpr int captionLeft = 8;
constexpr int captionTop = 3;

}  // namespace

FrameView::FrameView(forms::Frame& frame, QWidget& parent, ViewHost& host)
    : QGroupBox(&parent),
      ControlView(frame, host),
      frame_(frame) {
    setFocusPolicy(Qt::NoFocus);
}

bool FrameView::syncOwn() {
    return std::exchange(hasBorder_, frame_.hasBorder) != frame_.hasBorder;
}

void FrameView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const bool filled = look().back && !look().transparent;
    if (!hasBorder_) {
        if (filled) painter.fillRect(rect(), *look().back);
        return;
    }
    const QColor fill = filled ? *look().back : QColor(Qt::transparent);
    drawPlate(painter, rect(), 6, fill, blend(look().ground, textColourOn(look().ground), 0.16));
    if (look().caption.empty()) return;
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
    painter.setPen(textColour());
    drawFittedText(
        painter,
        QRectF(captionLeft, captionTop, width() - 2 * captionLeft, QFontMetrics(bold).height()),
        Qt::AlignLeft | Qt::AlignVCenter, caption().trimmed());
}

}  // namespace desktop

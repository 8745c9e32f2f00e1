#include "desktop/progress_view.h"

#include <QtGui/QPainterPath>

#include <utility>

#include "desktop/looks.h"
#include "desktop/painting.h"

namespace desktop {

namespace {

constexpr double cornerRadius = 4;
constexpr double captionGap = 6;

}  // namespace

ProgressView::ProgressView(furniture::ProgressBar& bar, QWidget& parent, ViewHost& host)
    : QProgressBar(&parent),
      ControlView(bar, host),
      bar_(bar) {
    setRange(0, 100);
    setTextVisible(false);
}

bool ProgressView::syncOwn() {
    const Drawn now{bar_.value(),       bar_.BarColor,    bar_.BorderColor,
                    bar_.BorderDefault, bar_.orientation, bar_.Alignment};
    if (now == drawn_) return false;
    drawn_ = now;
    setValue(now.value);
    return true;
}

QRectF ProgressView::filledPart(const QRectF& track) const {
    const double share = drawn_.value / 100.0;
    QRectF filled = track;
    if (drawn_.orientation == furniture::ProgressBar::Orientation::Vertical) {
        filled.setTop(track.bottom() - share * track.height());
    } else {
        filled.setWidth(share * track.width());
    }
    return filled;
}

void ProgressView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QColor ground = look().back.value_or(blend(look().ground, Qt::black, 0.3));
    const QColor bar = colourOf(drawn_.bar);
    const QColor line =
        drawn_.borderDefault ? blend(ground, textColourOn(ground), 0.2) : colourOf(drawn_.border);
    drawPlate(painter, rect(), cornerRadius, ground, line);

    const QRectF track = QRectF(rect()).adjusted(1, 1, -1, -1);
    const QRectF filled = filledPart(track);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath inside;
    inside.addRoundedRect(track, cornerRadius - 1, cornerRadius - 1);
    painter.save();
    painter.setClipPath(inside);
    painter.fillRect(filled, bar);
    painter.restore();

    // The caption changes its colour where the bar runs beneath it.
    const Qt::Alignment alignment = alignmentOf(drawn_.alignment);
    const QRectF room = track.adjusted(captionGap, 0, -captionGap, 0);
    painter.setPen(look().fore.value_or(textColourOn(ground)));
    painter.setClipRegion(QRegion(rect()).subtracted(filled.toAlignedRect()));
    drawFittedText(painter, room, alignment, caption());
    painter.setClipRect(filled.toAlignedRect());
    painter.setPen(textColourOn(bar));
    drawFittedText(painter, room, alignment, caption());
}

}  // namespace desktop

#include "desktop/style_icons.h"

#include <QtGui/QLinearGradient>
#include <QtGui/QPainterPath>

#include <array>

namespace desktop {

namespace {

const QRectF slide(0, 2, 48, 44);
const QColor slideColour(0xe2, 0xe8, 0xf0);
const QRectF place(8, 9, 32, 20);
constexpr double roundCorner = 5;
constexpr double mirroredHeight = 11;

void drawSlide(QPainter& painter) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(slideColour);
    painter.drawRoundedRect(slide, 3, 3);
}

void drawPicture(QPainter& painter, double radius) {
    painter.save();
    QPainterPath edge;
    edge.addRoundedRect(place, radius, radius);
    painter.setClipPath(edge, Qt::IntersectClip);
    painter.fillRect(place, Qt::white);
    const std::array heights{6.0, 9.5, 7.5, 13.0};
    const double base = place.bottom() - 3;
    double left = place.left() + 5;
    for (const double height : heights) {
        painter.fillRect(QRectF(left, base - height, 4, height), QColor(0x25, 0x63, 0xeb));
        left += 6;
    }
    painter.restore();
    painter.setPen(QPen(QColor(0x94, 0xa3, 0xb8), 0.8));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(edge);
}

/// Darker inwards: what is drawn over it hides the middle.
void drawShade(QPainter& painter, const QPointF& offset) {
    constexpr int steps = 5;
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(15, 23, 42, 38));
    for (int away = steps; away > 0; --away) {
        const double by = away * 0.8;
        painter.drawRoundedRect(place.translated(offset).adjusted(-by, -by, by, by), by, by);
    }
}

void drawMirrored(QPainter& painter, double radius) {
    const QRectF mirrored(slide.left(), place.bottom() + 1, slide.width(), mirroredHeight);
    painter.save();
    painter.setClipRect(mirrored, Qt::IntersectClip);
    painter.translate(0, 2 * place.bottom() + 1);
    painter.scale(1, -1);
    drawPicture(painter, radius);
    painter.restore();

    QColor faint = slideColour;
    faint.setAlpha(110);
    QLinearGradient fade(mirrored.topLeft(), mirrored.bottomLeft());
    fade.setColorAt(0, faint);
    fade.setColorAt(1, slideColour);
    painter.fillRect(mirrored.adjusted(1, 0, -1, 0), fade);
}

}  // namespace

void drawPlainPicture(QPainter& painter) {
    drawSlide(painter);
    drawPicture(painter, 0);
}

void drawShadowAllAround(QPainter& painter) {
    drawSlide(painter);
    drawShade(painter, {0, 0});
    drawPicture(painter, 0);
}

void drawShadowBelow(QPainter& painter) {
    drawSlide(painter);
    drawShade(painter, {2.5, 2.5});
    drawPicture(painter, 0);
}

void drawRoundedPicture(QPainter& painter) {
    drawSlide(painter);
    drawPicture(painter, roundCorner);
}

void drawReflection(QPainter& painter) {
    drawSlide(painter);
    drawMirrored(painter, 0);
    drawPicture(painter, 0);
}

void drawRoundedReflection(QPainter& painter) {
    drawSlide(painter);
    drawMirrored(painter, roundCorner);
    drawPicture(painter, roundCorner);
}

}  // namespace desktop

#include "desktop/row_icons.h"

#include <QtCore/QLineF>

#include <array>

namespace desktop {

namespace {

const QColor slate(100, 116, 139);
const QColor mist(148, 163, 184);
const QColor sky(96, 165, 250);
const QColor blue(59, 130, 246);

constexpr int gridFrom = 2;
constexpr int gridTo = 13;
constexpr int gridStep = 4;

void fillBox(QPainter& painter, double left, double top, double right, double bottom,
             const QColor& colour) {
    painter.fillRect(QRectF(QPointF(left, top), QPointF(right, bottom)), colour);
}

/// Boxes of whole pixels, the last ones included.
void fillPixels(QPainter& painter, int left, int top, int right, int bottom, const QColor& colour) {
    fillBox(painter, left, top, right + 1, bottom + 1, colour);
}

void drawFrame(QPainter& painter, int first, int last, const QColor& colour) {
    fillPixels(painter, first, first, last, first, colour);
    fillPixels(painter, first, last, last, last, colour);
    fillPixels(painter, first, first, first, last, colour);
    fillPixels(painter, last, first, last, last, colour);
}

QPen penOf(const QColor& colour, double width = 1) {
    return {colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

}  // namespace

void drawBarChart(QPainter& painter) {
    fillBox(painter, 2, 12, 14, 13.2, slate);
    fillBox(painter, 3, 9, 5.4, 12, sky);
    fillBox(painter, 6.3, 6, 8.7, 12, sky);
    fillBox(painter, 9.6, 3, 12, 12, blue);
}

void drawSheetWithStem(QPainter& painter) {
    painter.setPen(penOf(mist, 1.3));
    painter.drawLine(QLineF(8, 13, 8, 4));
    painter.setPen(penOf(sky, 1.5));
    const std::array head{QPointF(4.5, 7), QPointF(8, 3.2), QPointF(11.5, 7)};
    painter.drawPolyline(head.data(), static_cast<int>(head.size()));
}

void drawFramedChart(QPainter& painter) {
    drawFrame(painter, 2, 13, slate);
    fillPixels(painter, 4, 10, 5, 10, sky);
    fillPixels(painter, 6, 8, 7, 10, sky);
    fillPixels(painter, 8, 4, 9, 10, blue);
    fillPixels(painter, 4, 10, 11, 10, sky);
}

void drawGrid(QPainter& painter) {
    for (int at = gridFrom; at <= gridTo; at += gridStep) {
        fillPixels(painter, at, gridFrom, at, gridTo, slate);
        fillPixels(painter, gridFrom, at, gridTo, at, slate);
    }
    drawFrame(painter, 3, 12, mist);
}

void drawSortable(QPainter& painter) {
    painter.setPen(penOf(slate, 1.4));
    const std::array up{QPointF(5, 6.5), QPointF(8, 3.5), QPointF(11, 6.5)};
    const std::array down{QPointF(5, 9.5), QPointF(8, 12.5), QPointF(11, 9.5)};
    painter.drawPolyline(up.data(), static_cast<int>(up.size()));
    painter.drawPolyline(down.data(), static_cast<int>(down.size()));
}

}  // namespace desktop

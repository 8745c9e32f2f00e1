#include "desktop/row_icons.h"

#include <QtCore/QLineF>

#include <array>

namespace desktop {

namespace {

const QColor slate(100, 116, 139);
const QColor mist(148, 163, 184);
const QColor sky(96, 165, 250);
const QColor blue(59, 130, 246);

void fillBox(QPainter& painter, double left, double top, double right, double bottom,
             const QColor& colour) {
    painter.fillRect(QRectF(QPointF(left, top), QPointF(right, bottom)), colour);
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
    painter.setPen(penOf(slate));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(2, 2, 12, 11.5), 1.5, 1.5);
    fillBox(painter, 4, 8.4, 5.8, 11, sky);
    fillBox(painter, 6.8, 6.4, 8.6, 11, sky);
    fillBox(painter, 9.6, 4.4, 11.4, 11, blue);
    painter.setPen(penOf(sky, 0.8));
    painter.drawLine(QLineF(4, 11.4, 12, 11.4));
}

void drawGrid(QPainter& painter) {
    painter.setPen(penOf(slate, 0.9));
    for (const double at : {6.0, 10.0}) {
        painter.drawLine(QLineF(at, 2.5, at, 13.5));
        painter.drawLine(QLineF(2.5, at, 13.5, at));
    }
    painter.setPen(penOf(slate));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(2.5, 2.5, 11, 11), 1.5, 1.5);
    fillBox(painter, 3, 3, 13, 5.6, QColor(148, 163, 184, 110));
}

void drawSortable(QPainter& painter) {
    painter.setPen(penOf(slate, 1.4));
    const std::array up{QPointF(5, 6.5), QPointF(8, 3.5), QPointF(11, 6.5)};
    const std::array down{QPointF(5, 9.5), QPointF(8, 12.5), QPointF(11, 9.5)};
    painter.drawPolyline(up.data(), static_cast<int>(up.size()));
    painter.drawPolyline(down.data(), static_cast<int>(down.size()));
}

}  // namespace desktop

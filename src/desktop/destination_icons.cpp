#include "desktop/destination_icons.h"

#include <QtCore/QLineF>
#include <QtGui/QLinearGradient>
#include <QtGui/QPainterPath>

#include <array>

namespace desktop {

namespace {

const QColor paper(0xff, 0xff, 0xff);

QPen penOf(const QColor& colour, double width) {
    return {colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

/// The tile that all of them stand on.
void drawTile(QPainter& painter, const QColor& colour) {
    QLinearGradient shade(0, 3, 0, 45);
    shade.setColorAt(0, colour.lighter(116));
    shade.setColorAt(1, colour.darker(108));
    painter.setPen(Qt::NoPen);
    painter.setBrush(shade);
    painter.drawRoundedRect(QRectF(3, 3, 42, 42), 9, 9);
}

/// A sheet of paper with its corner turned down.
void drawSheet(QPainter& painter, const QColor& fold) {
    QPainterPath sheet;
    sheet.moveTo(15, 10);
    sheet.lineTo(28, 10);
    sheet.lineTo(34, 16);
    sheet.lineTo(34, 38);
    sheet.lineTo(15, 38);
    sheet.closeSubpath();
    painter.setPen(penOf(paper, 1.5));
    painter.setBrush(paper);
    painter.drawPath(sheet);
    painter.setPen(Qt::NoPen);
    painter.setBrush(fold);
    const std::array corner{QPointF(28, 9.5), QPointF(28, 16), QPointF(34.5, 16)};
    painter.drawPolygon(corner.data(), static_cast<int>(corner.size()));
}

}  // namespace

void drawPowerPoint(QPainter& painter) {
    const QColor own(0xd2, 0x47, 0x26);
    drawTile(painter, own);
    painter.setPen(Qt::NoPen);
    painter.setBrush(paper);
    painter.drawRoundedRect(QRectF(10, 12, 28, 20), 2, 2);
    painter.setPen(penOf(paper, 2));
    painter.drawLine(QLineF(24, 32, 24, 36));
    painter.drawLine(QLineF(18, 37.5, 30, 37.5));
    painter.setPen(Qt::NoPen);
    painter.setBrush(own);
    painter.drawPie(QRectF(13, 15.5, 13, 13), 90 * 16, 270 * 16);
    painter.setBrush(own.lighter(150));
    painter.drawPie(QRectF(14.5, 14, 13, 13), 0, 90 * 16);
    painter.setPen(penOf(own, 1.8));
    painter.drawLine(QLineF(30, 18.5, 34.5, 18.5));
    painter.drawLine(QLineF(30, 22.5, 34.5, 22.5));
    painter.drawLine(QLineF(30, 26.5, 33, 26.5));
}

void drawWord(QPainter& painter) {
    const QColor own(0x2b, 0x57, 0x9a);
    drawTile(painter, own);
    drawSheet(painter, own.lighter(150));
    painter.setPen(penOf(own, 1.8));
    for (const double y : {20.0, 24.5, 29.0}) painter.drawLine(QLineF(19, y, 30, y));
    painter.drawLine(QLineF(19, 33.5, 26, 33.5));
}

void drawHtml(QPainter& painter) {
    drawTile(painter, QColor(0x15, 0x65, 0xc0));
    painter.setPen(Qt::NoPen);
    painter.setBrush(paper);
    painter.drawRoundedRect(QRectF(9, 12, 30, 25), 2.5, 2.5);
    painter.setBrush(QColor(0x15, 0x65, 0xc0).lighter(160));
    painter.drawRect(QRectF(9, 16.5, 30, 1.8));
    for (const double x : {12.5, 15.5, 18.5}) painter.drawEllipse(QPointF(x, 14.4), 1, 1);
    painter.setPen(penOf(QColor(0x15, 0x65, 0xc0), 2.2));
    painter.setBrush(Qt::NoBrush);
    const std::array left{QPointF(19, 23), QPointF(14.5, 27.5), QPointF(19, 32)};
    const std::array right{QPointF(29, 23), QPointF(33.5, 27.5), QPointF(29, 32)};
    painter.drawPolyline(left.data(), static_cast<int>(left.size()));
    painter.drawPolyline(right.data(), static_cast<int>(right.size()));
    painter.drawLine(QLineF(26, 22, 22, 33));
}

void drawPdf(QPainter& painter) {
    const QColor own(0xc6, 0x28, 0x28);
    drawTile(painter, own);
    drawSheet(painter, own.lighter(150));
    painter.setPen(Qt::NoPen);
    painter.setBrush(own);
    painter.drawRoundedRect(QRectF(18.5, 20, 12, 7), 1.5, 1.5);
    painter.setPen(penOf(own, 1.8));
    painter.drawLine(QLineF(19, 31, 30, 31));
    painter.drawLine(QLineF(19, 34.5, 26, 34.5));
}

void drawImages(QPainter& painter) {
    const QColor own(0x7b, 0x1f, 0xa2);
    drawTile(painter, own);
    painter.setPen(penOf(QColor(255, 255, 255, 150), 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(14, 10, 25, 19), 2.5, 2.5);
    painter.setPen(penOf(own, 1.5));
    painter.setBrush(paper);
    painter.drawRoundedRect(QRectF(9, 15, 27, 22), 2.5, 2.5);
    painter.setPen(Qt::NoPen);
    painter.setBrush(own.lighter(170));
    painter.drawEllipse(QPointF(29.5, 21), 2.6, 2.6);
    painter.setBrush(own);
    const std::array hills{QPointF(11.5, 34.5), QPointF(19, 23.5), QPointF(24, 30),
                           QPointF(27, 26.8), QPointF(33.5, 34.5)};
    painter.drawPolygon(hills.data(), static_cast<int>(hills.size()));
}

void drawMurvane(QPainter& painter) {
    drawTile(painter, QColor(0x1e, 0x3a, 0x5f));
    const QColor sky(0x60, 0xa5, 0xfa);
    painter.setPen(Qt::NoPen);
    painter.setBrush(sky);
    painter.drawRoundedRect(QRectF(11, 27, 5.5, 10), 1.2, 1.2);
    painter.drawRoundedRect(QRectF(19, 21, 5.5, 16), 1.2, 1.2);
    painter.setBrush(QColor(0x3b, 0x82, 0xf6));
    painter.drawRoundedRect(QRectF(27, 24, 5.5, 13), 1.2, 1.2);
    painter.setPen(penOf(paper, 2.4));
    painter.setBrush(Qt::NoBrush);
    const std::array flight{QPointF(11.5, 20.5), QPointF(21, 13), QPointF(28, 17.5),
                            QPointF(37, 11)};
    painter.drawPolyline(flight.data(), static_cast<int>(flight.size()));
    const std::array head{QPointF(31.5, 10.5), QPointF(37, 11), QPointF(35.8, 16.4)};
    painter.drawPolyline(head.data(), static_cast<int>(head.size()));
}

}  // namespace desktop

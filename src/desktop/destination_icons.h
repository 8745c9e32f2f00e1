#pragma once

#include <QtGui/QPainter>

/// The pictures of the places that an export can go to, and the program's own, in a square of 48
/// by 48.
namespace desktop {

void drawPowerPoint(QPainter& painter);
void drawWord(QPainter& painter);
void drawHtml(QPainter& painter);
void drawPdf(QPainter& painter);
void drawImages(QPainter& painter);
void drawMurvane(QPainter& painter);

}  // namespace desktop

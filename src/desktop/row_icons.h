#pragma once

#include <QtGui/QPainter>

/// The pictures of a list's rows and headers, in a square of 16 by 16.
namespace desktop {

void drawBarChart(QPainter& painter);
void drawSheetWithStem(QPainter& painter);
void drawFramedChart(QPainter& painter);
void drawGrid(QPainter& painter);
void drawSortable(QPainter& painter);

}  // namespace desktop

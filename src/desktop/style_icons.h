#pragma once

#include <QtGui/QPainter>

/// A picture on a slide in each of the styles that pictures can have, in a square of 48 by 48.
namespace desktop {

void drawPlainPicture(QPainter& painter);
void drawShadowAllAround(QPainter& painter);
void drawShadowBelow(QPainter& painter);
void drawRoundedPicture(QPainter& painter);
void drawReflection(QPainter& painter);
void drawRoundedReflection(QPainter& painter);

}  // namespace desktop

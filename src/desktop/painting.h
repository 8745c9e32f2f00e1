#pragma once

#include <QtCore/QRectF>
#include <QtCore/QString>
#include <QtGui/QPainter>

#include <string_view>

namespace desktop {

/// Draws text into a box: on one line where it fits or nearly fits, then narrowed; on several lines
/// where the box is high enough. What doesn't fit then ends in an ellipsis.
void drawFittedText(QPainter& painter, const QRectF& box, Qt::Alignment alignment,
                    const QString& text);

/// A filled rectangle with round corners and a line of one pixel inside its edge.
void drawPlate(QPainter& painter, const QRectF& box, double radius, const QColor& fill,
               const QColor& line);

/// The frame of whatever has the keyboard.
void drawFocusRing(QPainter& painter, const QRectF& box, double radius, const QColor& ground);

/// The tick of a check box, or the dash of one that is neither checked nor clear, with its box.
enum class Mark { None, Tick, Dash };
void drawCheckMark(QPainter& painter, const QRectF& box, Mark mark, const QColor& ground,
                   bool enabled, bool hovered);

/// Draws one of the program's own pictures (the files in icons/) as large as fits into the middle
/// of the box. `name` is that of the file without its ending; "icon:" before it may be there or
/// not. Returns whether there is a picture of that name.
bool drawIcon(QPainter& painter, const QRectF& box, std::string_view name);

/// A triangle that points up or down.
void drawArrow(QPainter& painter, const QRectF& box, bool up, const QColor& colour);

/// The colour of a button's face while it is hovered, held down or disabled.
[[nodiscard]] QColor buttonFace(const QColor& own, bool enabled, bool hovered, bool down);

}  // namespace desktop

#pragma once

#include <QtCore/QRectF>
#include <QtGui/QPainter>

#include <string_view>

namespace desktop {

/// Draws one of the program's own pictures, as lines and areas and therefore sharp at any size, as
/// large as fits into the middle of the box. The names: "icon:chart-sheet", "icon:sheet-stem",
/// "icon:chart", "icon:range" for rows; "icon:powerpoint", "icon:word", "icon:html", "icon:pdf",
/// "icon:images" for destinations; "icon:murvane"; "icon:asc" for a column that can be sorted. The
/// "icon:" may be left out. Returns whether there is a picture of that name.
bool drawIcon(QPainter& painter, const QRectF& box, std::string_view name);

}  // namespace desktop

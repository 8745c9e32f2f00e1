#pragma once

#include <QtCore/QRectF>
#include <QtGui/QPainter>

namespace desktop {

/// The soft edge of a form.
struct Shadow {
    int depthPx = 0;
    int opacity = 0;  ///< of its strongest part, 0 to 255
    QColor colour;
    bool operator==(const Shadow&) const = default;
};

/// Paints the edge around a form's place in its window, fading outwards, and a fine line where the
/// form begins.
void paintShadow(QPainter& painter, const QRectF& form, const Shadow& shadow);

/// Whether a window may have see-through parts here. Without a compositor they come out black.
[[nodiscard]] bool canBlendWindows();

}  // namespace desktop

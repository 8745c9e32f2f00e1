#pragma once

#include <cstdint>

#include "office/libreoffice/powerpoint/held_shape.h"

namespace libreoffice::powerpoint {

/// A reflection as PowerPoint's files say it: lengths in points, the rest as shares of 1.
struct Reflection {
    double offsetPt = 0;
    double blurPt = 0;
    /// How much of the shape is mirrored; 0 is no reflection.
    double size = 0;
    double transparency = 0.5;
};

/// The reflection that a shape's file will have. LibreOffice draws none; it keeps one for the file.
[[nodiscard]] Reflection reflectionOf(HeldShape& shape);
void setReflection(HeldShape& shape, const Reflection& reflection);

/// To be called when a shadow has been switched on or off: beside effects that are kept for the
/// file, LibreOffice writes a shadow only if one is kept with them.
void shadowWasSwitched(HeldShape& shape, bool on);

}  // namespace libreoffice::powerpoint

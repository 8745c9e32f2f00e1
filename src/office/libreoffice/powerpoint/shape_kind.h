#pragma once

#include <cstdint>

#include "office/libreoffice/powerpoint/held_shape.h"

namespace libreoffice::powerpoint {

/// PowerPoint's number of a shape's type: 13 picture, 17 text box, 14 placeholder, ...
[[nodiscard]] std::int32_t shapeTypeOf(HeldShape& shape);

/// Whether PowerPoint lets a shape of this type hold text. LibreOffice lets pictures hold text too.
[[nodiscard]] bool hasTextFrameIn(HeldShape& shape);

}  // namespace libreoffice::powerpoint

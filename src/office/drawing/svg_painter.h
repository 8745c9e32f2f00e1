#pragma once

#include <string>

#include "office/drawing/painting.h"

namespace office::drawing {

/// The view box fills the picture. `Failure` 1004 for what is no SVG, or has no size.
[[nodiscard]] Painting paintingOfSvg(const std::string& svg);

}  // namespace office::drawing

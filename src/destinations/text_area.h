#pragma once

#include "office/value.h"

namespace destinations {

/// What the margins of a page leave, in points.
struct TextArea {
    double width = 0;
    double height = 0;
    /// From the left margin to the right edge of the paper.
    double toEdge = 0;
};

/// By its PageSetup.
[[nodiscard]] TextArea textAreaOf(const office::Value& page);
[[nodiscard]] double textWidthOf(const office::Value& page);

}  // namespace destinations

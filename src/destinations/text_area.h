#pragma once

#include "office/value.h"

namespace destinations {

/// In points.
struct Sides {
    double width = 0;
    double height = 0;
};

/// What the margins of a page leave, by its PageSetup.
[[nodiscard]] double textWidthOf(const office::Value& page);
[[nodiscard]] Sides textAreaOf(const office::Value& page);

}  // namespace destinations

#pragma once

#include "office/size.h"
#include "office/value.h"

namespace destinations {

/// What the margins of a page leave, and the column, the cell or the frame there, in points.
struct TextArea {
    double width = 0;
    double height = 0;
    /// From the left margin to the right edge of the paper.
    double toEdge = 0;

    /// The height that is there for a shape: the rest is for the empty lines on the page and for a
    /// caption. What is higher would go on to the next page, and leave this one empty.
    [[nodiscard]] double room() const { return height * 0.85; }
};

/// By its PageSetup.
[[nodiscard]] TextArea textAreaOf(const office::Value& page);

[[nodiscard]] office::Size sizeOf(const office::Object& shape);

/// Makes a shape of that natural size as large as a width and the area's room allow, in its
/// proportions.
void fit(const office::Object& shape, const office::Size& natural, double width,
         const TextArea& area);

}  // namespace destinations

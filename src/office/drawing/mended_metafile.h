#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace office::drawing {

/// A cell whose text ends at the right, in from the edge. In hundredths of a millimetre from the
/// corner of the picture.
struct IndentedCell {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
    double indent = 0;
};

/// Puts right in a metafile of cells of this width, in hundredths of a millimetre, what LibreOffice
/// writes otherwise than it reads it: lines along texts come out white there, and cells from right
/// to left stand aside, without their outer border, and squeezed if a text runs out of them. Texts
/// without their indent get it: LibreOffice loses it where a cell that it draws just before differs
/// in nothing but the format of its number, and of wrapped numbers. One without room for it keeps
/// its place. Fills and borders of the outer cells reach the edges of the picture. Behind what is
/// damaged all stays as it is.
void mendMetafileOfCells(std::span<char> bytes, std::int32_t width,
                         std::vector<IndentedCell> indented);

}  // namespace office::drawing

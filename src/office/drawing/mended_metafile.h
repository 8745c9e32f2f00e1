#pragma once

#include <cstdint>
#include <span>

namespace office::drawing {

/// Puts right in a metafile of cells of this width, in hundredths of a millimetre, what LibreOffice
/// writes otherwise than it reads it: lines along texts come out white there, and cells from right
/// to left stand aside, without their outer border, and squeezed if a text runs out of them. What
/// is damaged stays as it is.
void mendMetafileOfCells(std::span<char> bytes, std::int32_t width);

}  // namespace office::drawing

#pragma once

#include <cstdint>

namespace powerpoint {

/// A number as a 16-bit index: rounded, halves to the even neighbour. `office::Failure` 6 beyond 16
/// bits.
[[nodiscard]] std::int16_t shortInteger(double number);

/// Half of a length in whole points: the length is rounded to whole points first (halves to the
/// even neighbour), then halved and cut towards zero.
[[nodiscard]] double halfInWholePoints(double lengthPt);

}  // namespace powerpoint

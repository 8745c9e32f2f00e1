#include "powerpoint/numbers.h"

#include <fmt/format.h>

#include <cmath>
#include <limits>

#include "office/failure.h"

namespace powerpoint {

namespace {

constexpr std::int32_t overflow = 6;

}  // namespace

std::int16_t shortInteger(double number) {
    const double rounded = std::nearbyint(number);
    if (!(rounded >= std::numeric_limits<std::int16_t>::min() &&
          rounded <= std::numeric_limits<std::int16_t>::max())) {
        throw office::Failure(overflow, "Murvane",
                              fmt::format("Overflow: {} is no slide or shape number", number));
    }
    return static_cast<std::int16_t>(rounded);
}

double halfInWholePoints(double lengthPt) {
    return std::trunc(std::nearbyint(lengthPt) / 2);
}

}  // namespace powerpoint

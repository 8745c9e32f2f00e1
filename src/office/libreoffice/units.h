#pragma once

#include <cmath>
#include <cstdint>

#include "office/units.h"

/// LibreOffice measures in hundredths of a millimetre, the object models in points.
namespace libreoffice {

inline constexpr double hundredthMmPerInch = office::mmPerInch * 100;

[[nodiscard]] inline double pointsOf(std::int32_t hundredthMm) {
    return hundredthMm * office::pointsPerInch / hundredthMmPerInch;
}

[[nodiscard]] inline std::int32_t hundredthMmOf(double points) {
    return static_cast<std::int32_t>(
        std::lround(points * hundredthMmPerInch / office::pointsPerInch));
}

}  // namespace libreoffice

#pragma once

#include <cmath>
#include <cstdint>

/// LibreOffice measures in hundredths of a millimetre, the object models in points.
namespace libreoffice {

[[nodiscard]] inline double pointsOf(std::int32_t hundredthMm) {
    return hundredthMm * 72.0 / 2540.0;
}

[[nodiscard]] inline std::int32_t hundredthMmOf(double points) {
    return static_cast<std::int32_t>(std::lround(points * 2540.0 / 72.0));
}

}  // namespace libreoffice

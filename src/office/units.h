#pragma once

#include <string_view>

/// Lengths are points unless their names say otherwise.
namespace office {

inline constexpr double pointsPerInch = 72;
/// Of a screen, and of what counts in pixels and says nothing else.
inline constexpr double pixelsPerInch = 96;
inline constexpr double pixelsPerPoint = pixelsPerInch / pointsPerInch;
inline constexpr double pointsPerPixel = pointsPerInch / pixelsPerInch;
inline constexpr double mmPerInch = 25.4;
inline constexpr double inchesPerMetre = 1000 / mmPerInch;
/// English metric units, in which drawings are measured.
inline constexpr double emuPerPoint = 12700;
/// Shares in drawings are of so many, angles of so many to the degree.
inline constexpr double wholeShare = 100000;
inline constexpr double sharePerPercent = wholeShare / 100;
inline constexpr double anglePerDegree = 60000;

/// The points of a unit that markup may name behind a length, such as "cm"; 0 of any other.
[[nodiscard]] constexpr double pointsPer(std::string_view unit) {
    if (unit == "px") return pointsPerPixel;
    if (unit == "pt") return 1;
    if (unit == "pc") return 12;
    if (unit == "mm") return pointsPerInch / mmPerInch;
    if (unit == "cm") return pointsPerInch / mmPerInch * 10;
    return unit == "in" ? pointsPerInch : 0;
}

}  // namespace office

#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "office/picture_kind.h"

namespace support {

/// Vector pictures of a frame, for an object of this size in points.
std::string svgPictureOfPoints(double width, double height);
std::string emfPictureOfPoints(double width, double height);
/// The bytes of a file.
std::string textOf(const std::string& path);
/// A picture of this size in any kind.
std::vector<std::uint8_t> pictureOfPoints(office::PictureKind kind, double width, double height);

}  // namespace support

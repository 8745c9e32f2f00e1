#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace support {

/// What a PNG file says about its size.
struct PngSize {
    std::uint32_t widthPx = 0;
    std::uint32_t heightPx = 0;
    std::uint32_t pixelsPerMetre = 0;  ///< 0: the file says nothing about its density

    /// Natural size; 96 dots an inch where the file doesn't say.
    [[nodiscard]] double widthPoints() const { return points(widthPx); }
    [[nodiscard]] double heightPoints() const { return points(heightPx); }
    [[nodiscard]] double dotsPerInch() const;

private:
    [[nodiscard]] double points(std::uint32_t pixels) const;
};

struct PngPixels {
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::vector<std::uint8_t> rgba;

    /// Red, green, blue and alpha in words, such as "255 0 0 255 ".
    [[nodiscard]] std::string at(std::uint32_t x, std::uint32_t y) const;
};

/// Of a file's bytes. Throws `std::runtime_error` if they are no PNG.
PngPixels pixelsOf(const std::string& png);

/// A black and white picture with a frame and a diagonal, so that it isn't blank.
std::vector<std::uint8_t> pngPicture(const PngSize& size);

/// The picture of an object of this size in points, at 288 dots an inch.
std::vector<std::uint8_t> pngPictureOfPoints(double width, double height);

/// Throws `std::runtime_error` if there is no PNG at the path, or it can't be written.
PngSize pngSizeOf(const std::string& path);
void writeBytes(const std::string& path, const std::vector<std::uint8_t>& bytes);

}  // namespace support

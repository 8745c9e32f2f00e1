#include "support/vector_file.h"

#include <fmt/format.h>

#include <cmath>
#include <cstdint>
#include <fstream>
#include <iterator>

#include "support/png_file.h"

namespace support {

std::string svgPictureOfPoints(double width, double height) {
    return fmt::format(
        R"(<svg xmlns="http://www.w3.org/2000/svg" width="{0}pt" height="{1}pt" )"
        R"(viewBox="0 0 {0} {1}"><rect width="{0}" height="{1}" fill="#1878a8"/></svg>)",
        width, height);
}

/// The header, one rectangle and the end: all numbers have 32 bits, lowest byte first.
std::string emfPictureOfPoints(double width, double height) {
    constexpr double hundredthMm = 2540.0 / 72;
    constexpr double pixels = 96.0 / 72;
    const auto round = [](double length) {
        return static_cast<std::uint32_t>(std::lround(length));
    };
    const std::uint32_t across = round(width * pixels);
    const std::uint32_t down = round(height * pixels);
    std::string bytes;
    const auto put = [&](std::initializer_list<std::uint32_t> numbers) {
        for (const std::uint32_t number : numbers) {
            for (unsigned shift = 0; shift < 32; shift += 8)
                bytes += static_cast<char>(number >> shift & 0xFFU);
        }
    };
    put({1,
         88,
         0,
         0,
         across - 1,
         down - 1,
         0,
         0,
         round(width * hundredthMm),
         round(height * hundredthMm),
         0x464D4520,
         0x10000,
         88 + 24 + 20,
         3,
         1,
         0,
         0,
         0,
         1920,
         1080,
         508,
         286});
    put({43, 24, 0, 0, across - 1, down - 1});
    put({14, 20, 0, 16, 20});
    return bytes;
}

std::string textOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::uint8_t> pictureOfPoints(office::PictureKind kind, double width, double height) {
    if (kind == office::PictureKind::Png) return pngPictureOfPoints(width, height);
    const std::string bytes = kind == office::PictureKind::Svg ? svgPictureOfPoints(width, height)
                                                               : emfPictureOfPoints(width, height);
    return {bytes.begin(), bytes.end()};
}

}  // namespace support

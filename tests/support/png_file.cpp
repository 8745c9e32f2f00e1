#include "support/png_file.h"

#include <png.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <memory>
#include <stdexcept>

namespace support {

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr double metresPerInch = 0.0254;
constexpr double pointsPerInch = 72;

[[noreturn]] void refuse(png_structp, png_const_charp why) {
    throw std::runtime_error(why);
}

/// The library's two structures, freed together.
struct Png {
    png_structp file;
    png_infop info = png_create_info_struct(file);
    void (*free)(Png&);

    Png(png_structp made, void (*freeBoth)(Png&)) : file(made), free(freeBoth) {}
    Png(const Png&) = delete;
    Png& operator=(const Png&) = delete;
    ~Png() { free(*this); }
};

/// A row of one bit a pixel.
Bytes framedRow(std::size_t rowBytes, std::uint32_t y, std::uint32_t height) {
    Bytes row(rowBytes, y == 0 || y + 1 == height ? 0 : 0xFF);
    if (rowBytes > 0) row[y % rowBytes] = 0;
    return row;
}

}  // namespace

double PngSize::dotsPerInch() const {
    return pixelsPerMetre == 0 ? 96.0 : pixelsPerMetre * metresPerInch;
}

double PngSize::points(std::uint32_t pixels) const {
    return pixels / dotsPerInch() * pointsPerInch;
}

std::string PngPixels::at(std::uint32_t x, std::uint32_t y) const {
    constexpr std::size_t channels = 4;
    std::string words;
    for (std::size_t i = 0; i < channels; ++i)
        words += std::to_string(rgba.at((std::size_t{y} * width + x) * channels + i)) + " ";
    return words;
}

PngPixels pixelsOf(const std::string& png) {
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    if (png_image_begin_read_from_memory(&image, png.data(), png.size()) == 0)
        throw std::runtime_error(image.message);
    image.format = PNG_FORMAT_RGBA;
    PngPixels pixels{image.width, image.height, Bytes(PNG_IMAGE_SIZE(image))};
    if (png_image_finish_read(&image, nullptr, pixels.rgba.data(), 0, nullptr) == 0)
        throw std::runtime_error(image.message);
    return pixels;
}

Bytes pngPicture(const PngSize& size) {
    Bytes bytes;
    const Png png(png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, refuse, nullptr),
                  [](Png& held) { png_destroy_write_struct(&held.file, &held.info); });
    png_set_write_fn(
        png.file, &bytes,
        [](png_structp writer, png_bytep data, std::size_t length) {
            auto& all = *static_cast<Bytes*>(png_get_io_ptr(writer));
            all.insert(all.end(), data, data + length);
        },
        nullptr);
    png_set_compression_level(png.file, 0);
    png_set_IHDR(png.file, png.info, size.widthPx, size.heightPx, 1, PNG_COLOR_TYPE_GRAY,
                 PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    if (size.pixelsPerMetre != 0) {
        png_set_pHYs(png.file, png.info, size.pixelsPerMetre, size.pixelsPerMetre,
                     PNG_RESOLUTION_METER);
    }
    png_write_info(png.file, png.info);
    for (std::uint32_t y = 0; y < size.heightPx; ++y) {
        png_write_row(png.file, framedRow((size.widthPx + 7U) / 8U, y, size.heightPx).data());
    }
    png_write_end(png.file, png.info);
    return bytes;
}

Bytes pngPictureOfPoints(double width, double height) {
    constexpr double dotsPerInch = 288;
    const auto pixels = [&](double points) {
        return static_cast<std::uint32_t>(
            std::max(1.0, std::round(points / pointsPerInch * dotsPerInch)));
    };
    return pngPicture({pixels(width), pixels(height),
                       static_cast<std::uint32_t>(std::round(dotsPerInch / metresPerInch))});
}

PngSize pngSizeOf(const std::string& path) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"),
                                                               &std::fclose);
    if (!file) throw std::runtime_error("There is no PNG file at " + path);
    const Png png(png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, refuse, nullptr),
                  [](Png& held) { png_destroy_read_struct(&held.file, &held.info, nullptr); });
    png_init_io(png.file, file.get());
    png_read_info(png.file, png.info);
    // Across alone: with sides that differ by rounding the library knows no common density.
    return {png_get_image_width(png.file, png.info), png_get_image_height(png.file, png.info),
            png_get_x_pixels_per_meter(png.file, png.info)};
}

void writeBytes(const std::string& path, const Bytes& bytes) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    std::copy(bytes.begin(), bytes.end(), std::ostreambuf_iterator<char>(file));
    if (!file.flush()) throw std::runtime_error("Can't write " + path);
}

}  // namespace support

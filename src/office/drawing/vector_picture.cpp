#include "office/drawing/vector_picture.h"

#include <cairo.h>
#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <memory>

#include "office/drawing/metafile.h"
#include "office/drawing/metafile_painter.h"
#include "office/drawing/painting.h"
#include "office/drawing/png_writer.h"
#include "office/drawing/released_by.h"
#include "office/drawing/svg_painter.h"
#include "office/units.h"

namespace office::drawing {

namespace {

/// As many pixels are in the works at a time.
constexpr std::int32_t pixelsOfStrip = 6'000'000;

using Surface = std::unique_ptr<cairo_surface_t, ReleasedBy<&cairo_surface_destroy>>;
using Context = std::unique_ptr<cairo_t, ReleasedBy<&cairo_destroy>>;

void require(const cairo_t* context) {
    const cairo_status_t status = cairo_status(const_cast<cairo_t*>(context));
    if (status != CAIRO_STATUS_SUCCESS) failToDraw(cairo_status_to_string(status));
}

std::uint32_t perMetre(std::int32_t pixels, double points) {
    return static_cast<std::uint32_t>(
        std::lround(pixels / (points / pointsPerInch) * inchesPerMetre));
}

/// Cairo keeps a pixel as one number, alpha uppermost, the colours multiplied with it.
std::uint32_t pixelAt(const std::uint8_t* row, std::int32_t x) {
    std::uint32_t pixel = 0;
    std::memcpy(&pixel, row + std::size_t{4} * static_cast<std::size_t>(x), sizeof pixel);
    return pixel;
}

/// The compiler makes four times as fast a loop of it with the instructions of newer processors,
/// which not each has.
[[gnu::target_clones("avx2", "ssse3", "default"), gnu::optimize("O3")]] void copyOpaqueRow(
    const std::uint8_t* from, std::int32_t width, std::uint8_t* to) {
    for (std::int32_t x = 0; x < width; ++x, to += 3) {
        const std::uint32_t pixel = pixelAt(from, x);
        to[0] = static_cast<std::uint8_t>(pixel >> 16U);
        to[1] = static_cast<std::uint8_t>(pixel >> 8U);
        to[2] = static_cast<std::uint8_t>(pixel);
    }
}

void copyTranslucentRow(const std::uint8_t* from, std::int32_t width, std::uint8_t* to) {
    for (std::int32_t x = 0; x < width; ++x) {
        const std::uint32_t pixel = pixelAt(from, x);
        const std::uint32_t alpha = pixel >> 24U;
        for (const unsigned shift : {16U, 8U, 0U}) {
            const std::uint32_t value = pixel >> shift & 255U;
            *to++ = static_cast<std::uint8_t>(
                alpha == 0 ? 0 : std::min(255U, (value * 255U + alpha / 2) / alpha));
        }
        *to++ = static_cast<std::uint8_t>(alpha);
    }
}

/// What one strip after the other is drawn on. Cairo's own memory would be cleared, and then
/// painted.
class Canvas {
public:
    Canvas(const VectorPicture& picture, std::int32_t mostRows)
        : isTranslucent_(picture.isTranslucent),
          width_(picture.width),
          pixels_(std::make_unique_for_overwrite<std::uint32_t[]>(
              static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(mostRows))) {}

    [[nodiscard]] const std::uint8_t* row(std::int32_t y) const {
        return reinterpret_cast<const std::uint8_t*>(pixels_.get() + pixelsOf(y));
    }

    /// The strip of a picture that begins with this row.
    void draw(const Painting& painting, const VectorPicture& picture, std::int32_t top,
              std::int32_t rows) {
        constexpr std::uint32_t white = 0xFFFFFFFF;
        std::fill_n(pixels_.get(), pixelsOf(rows), isTranslucent_ ? 0 : white);
        constexpr int bytesOfPixel = 4;
        const Surface surface(cairo_image_surface_create_for_data(
            reinterpret_cast<unsigned char*>(pixels_.get()),
            isTranslucent_ ? CAIRO_FORMAT_ARGB32 : CAIRO_FORMAT_RGB24, width_, rows,
            width_ * bytesOfPixel));
        const Context context(cairo_create(surface.get()));
        cairo_translate(context.get(), 0, -top);
        painting(context.get(), picture.width, picture.height);
        require(context.get());
        cairo_surface_flush(surface.get());
    }

private:
    [[nodiscard]] std::size_t pixelsOf(std::int32_t rows) const {
        return static_cast<std::size_t>(rows) * static_cast<std::size_t>(width_);
    }

    bool isTranslucent_;
    std::int32_t width_;
    std::unique_ptr<std::uint32_t[]> pixels_;
};

}  // namespace

std::string pngOf(const VectorPicture& picture) {
    if (picture.width <= 0 || picture.height <= 0 || !(picture.widthPt > 0) ||
        !(picture.heightPt > 0))
        failToDraw("it is empty");
    const Painting painting = isMetafile(picture.vectors) ? paintingOfMetafile(picture.vectors)
                                                          : paintingOfSvg(picture.vectors);

    PngWriter writer(
        picture.width, picture.height, picture.isTranslucent ? Channels::Rgba : Channels::Rgb,
        perMetre(picture.width, picture.widthPt), perMetre(picture.height, picture.heightPt));
    const auto copyRow = picture.isTranslucent ? copyTranslucentRow : copyOpaqueRow;
    const std::int32_t stripHeight = std::clamp(pixelsOfStrip / picture.width, 1, picture.height);
    Canvas canvas(picture, stripHeight);
    for (std::int32_t top = 0; top < picture.height; top += stripHeight) {
        const std::int32_t height = std::min(stripHeight, picture.height - top);
        canvas.draw(painting, picture, top, height);
        for (std::int32_t y = 0; y < height; ++y)
            copyRow(canvas.row(y), picture.width, writer.nextRow().data());
    }
    return writer.bytes();
}

}  // namespace office::drawing

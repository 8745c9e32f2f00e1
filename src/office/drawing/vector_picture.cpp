#include "office/drawing/vector_picture.h"

#include <cairo.h>
#include <fmt/format.h>
#include <librsvg/rsvg.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <memory>
#include <vector>

#include "office/drawing/png_writer.h"
#include "office/drawing/released_by.h"
#include "office/failure.h"

namespace office::drawing {

namespace {

/// As many pixels are in the works at a time.
constexpr std::int32_t pixelsOfStrip = 6'000'000;
constexpr double inchesPerMetre = 1 / 0.0254;
constexpr double pointsPerInch = 72;

using Drawing = std::unique_ptr<RsvgHandle, ReleasedBy<&g_object_unref>>;
using Surface = std::unique_ptr<cairo_surface_t, ReleasedBy<&cairo_surface_destroy>>;
using Context = std::unique_ptr<cairo_t, ReleasedBy<&cairo_destroy>>;
using Error = std::unique_ptr<GError, ReleasedBy<&g_error_free>>;

[[noreturn]] void fail(const std::string& reason) {
    throw Failure(FailureNumber::ApplicationDefined, "Picture",
                  "The picture could not be drawn: " + reason);
}

[[noreturn]] void fail(GError* error) {
    const Error held(error);
    fail(held ? held->message : "no reason is known");
}

void require(const cairo_t* context) {
    const cairo_status_t status = cairo_status(const_cast<cairo_t*>(context));
    if (status != CAIRO_STATUS_SUCCESS) fail(cairo_status_to_string(status));
}

Drawing read(const std::string& svg) {
    GError* error = nullptr;
    // With no address of its own, it can't lead to another file.
    Drawing drawing(
        rsvg_handle_new_from_data(reinterpret_cast<const guint8*>(svg.data()), svg.size(), &error));
    if (!drawing) fail(error);
    constexpr double screenDpi = 96;
    rsvg_handle_set_dpi(drawing.get(), screenDpi);
    return drawing;
}

/// What the drawing measures in units of its own.
RsvgRectangle extentOf(RsvgHandle* drawing) {
    gboolean hasWidth = FALSE;
    gboolean hasHeight = FALSE;
    gboolean hasBox = FALSE;
    RsvgLength width{};
    RsvgLength height{};
    RsvgRectangle box{};
    rsvg_handle_get_intrinsic_dimensions(drawing, &hasWidth, &width, &hasHeight, &height, &hasBox,
                                         &box);
    if (hasBox == FALSE &&
        rsvg_handle_get_intrinsic_size_in_pixels(drawing, &box.width, &box.height) == FALSE)
        fail("it has no size");
    if (!(box.width > 0 && box.height > 0)) fail("it is empty");
    return box;
}

std::uint32_t perMetre(std::int32_t pixels, double points) {
    return static_cast<std::uint32_t>(
        std::lround(pixels / (points / pointsPerInch) * inchesPerMetre));
}

/// Cairo keeps a pixel as one number, alpha uppermost, the colours multiplied with it.
void copyRow(const std::uint8_t* from, std::int32_t width, bool isTranslucent,
             std::vector<std::uint8_t>& row) {
    std::uint8_t* to = row.data();
    for (std::int32_t x = 0; x < width; ++x) {
        std::uint32_t pixel = 0;
        std::memcpy(&pixel, from + std::size_t{4} * static_cast<std::size_t>(x), sizeof pixel);
        const std::uint32_t alpha = isTranslucent ? pixel >> 24U : 255U;
        const auto channel = [&](unsigned shift) {
            const std::uint32_t value = pixel >> shift & 255U;
            if (alpha == 255U || alpha == 0U) return static_cast<std::uint8_t>(value);
            return static_cast<std::uint8_t>(std::min(255U, (value * 255U + alpha / 2) / alpha));
        };
        *to++ = channel(16);
        *to++ = channel(8);
        *to++ = channel(0);
        if (isTranslucent) *to++ = static_cast<std::uint8_t>(alpha);
    }
}

/// The strip of a picture that begins with this row.
Surface drawStrip(RsvgHandle* drawing, const RsvgRectangle& extent, const VectorPicture& picture,
                  std::int32_t top, std::int32_t height) {
    Surface surface(cairo_image_surface_create(
        picture.isTranslucent ? CAIRO_FORMAT_ARGB32 : CAIRO_FORMAT_RGB24, picture.width, height));
    const Context context(cairo_create(surface.get()));
    if (!picture.isTranslucent) {
        cairo_set_source_rgb(context.get(), 1, 1, 1);
        cairo_paint(context.get());
    }
    cairo_translate(context.get(), 0, -top);
    cairo_scale(context.get(), picture.width / extent.width, picture.height / extent.height);
    const RsvgRectangle viewport{0, 0, extent.width, extent.height};
    GError* error = nullptr;
    if (rsvg_handle_render_document(drawing, context.get(), &viewport, &error) == FALSE)
        fail(error);
    require(context.get());
    cairo_surface_flush(surface.get());
    return surface;
}

}  // namespace

std::string pngOf(const VectorPicture& picture) {
    if (picture.width <= 0 || picture.height <= 0 || !(picture.widthPt > 0) ||
        !(picture.heightPt > 0))
        fail("it is empty");
    const Drawing drawing = read(picture.svg);
    const RsvgRectangle extent = extentOf(drawing.get());

    PngWriter writer(
        picture.width, picture.height, picture.isTranslucent ? Channels::Rgba : Channels::Rgb,
        perMetre(picture.width, picture.widthPt), perMetre(picture.height, picture.heightPt));
    std::vector<std::uint8_t> row(static_cast<std::size_t>(picture.width) *
                                  (picture.isTranslucent ? 4U : 3U));
    const std::int32_t stripHeight = std::max(1, pixelsOfStrip / picture.width);
    for (std::int32_t top = 0; top < picture.height; top += stripHeight) {
        const std::int32_t height = std::min(stripHeight, picture.height - top);
        const Surface strip = drawStrip(drawing.get(), extent, picture, top, height);
        const std::uint8_t* pixels = cairo_image_surface_get_data(strip.get());
        const auto stride = static_cast<std::size_t>(cairo_image_surface_get_stride(strip.get()));
        for (std::int32_t y = 0; y < height; ++y) {
            copyRow(pixels + static_cast<std::size_t>(y) * stride, picture.width,
                    picture.isTranslucent, row);
            writer.writeRow(row);
        }
    }
    return writer.bytes();
}

}  // namespace office::drawing

#include "office/drawing/svg_painter.h"

#include <librsvg/rsvg.h>

#include <memory>

#include "office/drawing/released_by.h"
#include "office/units.h"

namespace office::drawing {

namespace {

using Drawing = std::unique_ptr<RsvgHandle, ReleasedBy<&g_object_unref>>;
using Error = std::unique_ptr<GError, ReleasedBy<&g_error_free>>;

[[noreturn]] void fail(GError* error) {
    const Error held(error);
    failToDraw(held ? held->message : "no reason is known");
}

Drawing read(const std::string& svg) {
    GError* error = nullptr;
    // With no address of its own, it can't lead to another file.
    Drawing drawing(
        rsvg_handle_new_from_data(reinterpret_cast<const guint8*>(svg.data()), svg.size(), &error));
    if (!drawing) fail(error);
    rsvg_handle_set_dpi(drawing.get(), pixelsPerInch);
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
        failToDraw("it has no size");
    if (!(box.width > 0 && box.height > 0)) failToDraw("it is empty");
    return box;
}

}  // namespace

Painting paintingOfSvg(const std::string& svg) {
    const std::shared_ptr<RsvgHandle> drawing = read(svg);
    const RsvgRectangle extent = extentOf(drawing.get());
    return [drawing, extent](cairo_t* context, double width, double height) {
        cairo_scale(context, width / extent.width, height / extent.height);
        const RsvgRectangle viewport{0, 0, extent.width, extent.height};
        GError* error = nullptr;
        if (rsvg_handle_render_document(drawing.get(), context, &viewport, &error) == FALSE)
            fail(error);
    };
}

}  // namespace office::drawing

// How much room a text takes: by Pango, in the fonts that Fontconfig finds, as most programs of
// this platform draw it.

#include <pango/pangoft2.h>

#include <cmath>
#include <memory>

#include "apps/posix_host.h"

namespace apps {

namespace {

template <class Type>
using Owned = std::unique_ptr<Type, decltype(&g_object_unref)>;

template <class Type>
Owned<Type> owned(Type* object) {
    return {object, &g_object_unref};
}

}  // namespace

session::TextSize PosixHost::textSize(std::string_view text, const session::TextFont& font,
                                      std::optional<double> widthPt) {
    // With as many dots as points to the inch, lengths come out in points.
    constexpr double pointsPerInch = 72;
    const auto fonts = owned(pango_ft2_font_map_new());
    pango_ft2_font_map_set_resolution(PANGO_FT2_FONT_MAP(fonts.get()), pointsPerInch,
                                      pointsPerInch);
    const auto context = owned(pango_font_map_create_context(fonts.get()));
    pango_context_set_round_glyph_positions(context.get(), FALSE);
    const auto layout = owned(pango_layout_new(context.get()));

    const std::unique_ptr<PangoFontDescription, decltype(&pango_font_description_free)> wanted(
        pango_font_description_new(), &pango_font_description_free);
    pango_font_description_set_family(wanted.get(), font.name.c_str());
    pango_font_description_set_size(wanted.get(),
                                    static_cast<int>(std::lround(font.sizePt * PANGO_SCALE)));
    pango_layout_set_font_description(layout.get(), wanted.get());
    pango_layout_set_text(layout.get(), text.data(), static_cast<int>(text.size()));
    if (widthPt)
        pango_layout_set_width(layout.get(), static_cast<int>(std::lround(*widthPt * PANGO_SCALE)));
    int width = 0;
    int height = 0;
    pango_layout_get_size(layout.get(), &width, &height);
    return {static_cast<double>(width) / PANGO_SCALE, static_cast<double>(height) / PANGO_SCALE};
}

}  // namespace apps

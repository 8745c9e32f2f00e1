#include "apps/pango_text.h"

#include <pango/pangoft2.h>

#include <cmath>

#include "office/units.h"

namespace apps {

namespace {

std::shared_ptr<void> owned(void* object) {
    return {object, &g_object_unref};
}

}  // namespace

TextMeasure::TextMeasure() : fonts_(owned(pango_ft2_font_map_new())) {
    // With as many dots as points to the inch, lengths come out in points.
    pango_ft2_font_map_set_resolution(static_cast<PangoFT2FontMap*>(fonts_.get()),
                                      office::pointsPerInch, office::pointsPerInch);
    auto* const context = pango_font_map_create_context(static_cast<PangoFontMap*>(fonts_.get()));
    pango_context_set_round_glyph_positions(context, FALSE);
    context_ = owned(context);
}

office::Size TextMeasure::sizeOf(std::string_view text, const office::Font& font,
                                 std::optional<double> widthPt) const {
    const auto inPangoUnits = [](double points) {
        return static_cast<int>(std::lround(points * PANGO_SCALE));
    };
    auto* const layout = pango_layout_new(static_cast<PangoContext*>(context_.get()));
    const auto owner = owned(layout);
    const std::unique_ptr<PangoFontDescription, decltype(&pango_font_description_free)> wanted(
        pango_font_description_new(), &pango_font_description_free);
    pango_font_description_set_family(wanted.get(), font.name.c_str());
    pango_font_description_set_size(wanted.get(), inPangoUnits(font.sizePt));
    pango_layout_set_font_description(layout, wanted.get());
    pango_layout_set_text(layout, text.data(), static_cast<int>(text.size()));
    if (widthPt) pango_layout_set_width(layout, inPangoUnits(*widthPt));
    int width = 0;
    int height = 0;
    pango_layout_get_size(layout, &width, &height);
    return {static_cast<double>(width) / PANGO_SCALE, static_cast<double>(height) / PANGO_SCALE};
}

}  // namespace apps

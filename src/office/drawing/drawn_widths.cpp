#include "office/drawing/drawn_widths.h"

#include "office/drawing/pango_font.h"

namespace office::drawing {

namespace {

/// Large enough for widths that no hint of a font changes.
constexpr double measuredSize = 1000;

}  // namespace

struct DrawnWidths::Context {
    Owned<PangoFontMap> fonts{pango_cairo_font_map_new()};
    Owned<PangoContext> context{pango_font_map_create_context(fonts.get())};
};

DrawnWidths::DrawnWidths() : context_(std::make_unique<Context>()) {
    pango_context_set_round_glyph_positions(context_->context.get(), FALSE);
}

DrawnWidths::~DrawnWidths() = default;

std::optional<double> DrawnWidths::of(const std::string& line, const NamedFont& font) const {
    const PangoFontOwned wanted = pangoFontOf(font, measuredSize);
    const Owned<PangoLayout> layout(pango_layout_new(context_->context.get()));
    pango_layout_set_font_description(layout.get(), wanted.get());
    pango_layout_set_text(layout.get(), line.data(), static_cast<int>(line.size()));
    if (pango_layout_get_unknown_glyphs_count(layout.get()) > 0) return std::nullopt;
    int width = 0;
    pango_layout_get_size(layout.get(), &width, nullptr);
    return width / (measuredSize * PANGO_SCALE);
}

}  // namespace office::drawing

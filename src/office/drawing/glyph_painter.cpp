#include "office/drawing/glyph_painter.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

#include "office/drawing/pango_font.h"

namespace office::drawing {

namespace {

using Metrics = std::unique_ptr<PangoFontMetrics, ReleasedBy<&pango_font_metrics_unref>>;
using Options = std::unique_ptr<cairo_font_options_t, ReleasedBy<&cairo_font_options_destroy>>;

}  // namespace

struct GlyphPainter::Layout {
    Owned<PangoContext> context;
    Owned<PangoLayout> layout;
    const Metafile::Font* font = nullptr;
};

GlyphPainter::GlyphPainter(cairo_t* context, double across, double down)
    : context_(context),
      across_(across),
      down_(down),
      layout_(std::make_unique<Layout>()) {
    layout_->context.reset(pango_font_map_create_context(pango_cairo_font_map_get_default()));
    const Options options(cairo_font_options_create());
    cairo_font_options_set_antialias(options.get(), CAIRO_ANTIALIAS_GRAY);
    cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_SLIGHT);
    cairo_font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_OFF);
    pango_cairo_context_set_font_options(layout_->context.get(), options.get());
    pango_context_set_round_glyph_positions(layout_->context.get(), FALSE);
    layout_->layout.reset(pango_layout_new(layout_->context.get()));
    pango_layout_set_single_paragraph_mode(layout_->layout.get(), TRUE);
}

GlyphPainter::~GlyphPainter() = default;

void GlyphPainter::setFont(const Metafile::Font& font) {
    if (layout_->font == &font) return;
    layout_->font = &font;
    const PangoFontOwned wanted = pangoFontOf(font.name, std::round(font.height * down_));
    pango_layout_set_font_description(layout_->layout.get(), wanted.get());
}

void GlyphPainter::setSource(const Metafile::Colour& colour) {
    cairo_set_source_rgb(context_, colour.red, colour.green, colour.blue);
}

void GlyphPainter::paint(const Metafile::Text& text, const Metafile::Font& font) {
    // Too small to be seen.
    if (std::round(font.height * down_) < 1) return;
    setFont(font);
    cairo_save(context_);
    setSource(text.colour);
    cairo_translate(context_, std::round(text.start.x * across_), std::round(text.start.y * down_));
    if (font.angle != 0) cairo_rotate(context_, -font.angle * std::numbers::pi / 180);
    paintGlyphs(text);
    if (font.underlines > 0 || font.isStruckOut) paintLines(text, font);
    cairo_restore(context_);
}

void GlyphPainter::paintGlyphs(const Metafile::Text& text) {
    PangoLayout* layout = layout_->layout.get();
    pango_layout_set_text(layout, text.characters.data(), static_cast<int>(text.characters.size()));
    std::vector<cairo_glyph_t> glyphs;
    for (const GSList* item = pango_layout_get_line_readonly(layout, 0)->runs; item != nullptr;
         item = item->next) {
        const auto* run = static_cast<const PangoGlyphItem*>(item->data);
        glyphs.clear();
        int cluster = -1;
        // Of several glyphs for one character.
        double before = 0;
        for (int i = 0; i < run->glyphs->num_glyphs; ++i) {
            const PangoGlyphInfo& glyph = run->glyphs->glyphs[i];
            if (run->glyphs->log_clusters[i] != cluster) before = 0;
            cluster = run->glyphs->log_clusters[i];
            const double place = text.places.at(static_cast<std::size_t>(run->item->offset) +
                                                static_cast<std::size_t>(cluster));
            if (glyph.glyph != PANGO_GLYPH_EMPTY && (glyph.glyph & PANGO_GLYPH_UNKNOWN_FLAG) == 0) {
                glyphs.push_back({glyph.glyph,
                                  std::round(place * across_) + before +
                                      pango_units_to_double(glyph.geometry.x_offset),
                                  pango_units_to_double(glyph.geometry.y_offset)});
            }
            before += pango_units_to_double(glyph.geometry.width);
        }
        cairo_scaled_font_t* font =
            pango_cairo_font_get_scaled_font(PANGO_CAIRO_FONT(run->item->analysis.font));
        const Options options(cairo_font_options_create());
        cairo_matrix_t matrix;
        cairo_scaled_font_get_font_options(font, options.get());
        cairo_scaled_font_get_font_matrix(font, &matrix);
        cairo_set_font_face(context_, cairo_scaled_font_get_font_face(font));
        cairo_set_font_matrix(context_, &matrix);
        cairo_set_font_options(context_, options.get());
        cairo_show_glyphs(context_, glyphs.data(), static_cast<int>(glyphs.size()));
    }
}

/// Their places and weights follow from the font's ascent and descent.
void GlyphPainter::paintLines(const Metafile::Text& text, const Metafile::Font& font) {
    const Metrics metrics(pango_context_get_metrics(
        layout_->context.get(), pango_layout_get_font_description(layout_->layout.get()), nullptr));
    const double ascent =
        std::round(pango_units_to_double(pango_font_metrics_get_ascent(metrics.get())));
    const double descent =
        std::min(std::round(pango_units_to_double(pango_font_metrics_get_descent(metrics.get()))),
                 std::floor(ascent / 3));
    const double width = std::round(text.width * across_);
    const auto line = [&](double at, double weight) {
        cairo_rectangle(context_, 0, at, width, weight);
        cairo_fill(context_);
    };
    const double single = std::max(1.0, std::floor((descent * 25 + 50) / 100));
    const double half = std::max(1.0, std::floor(single / 2));
    setSource(text.lineColour);
    if (font.underlines == 1) line(std::floor(descent * 7 / 10) - half, single);
    if (font.underlines == 2) {
        const double weight = std::max(1.0, std::floor((descent * 16 + 50) / 100));
        const double first = std::floor(descent * 7 / 10) - std::floor(weight / 2) - weight;
        line(first, weight);
        line(first + 2 * weight, weight);
    }
    setSource(text.colour);
    if (font.isStruckOut) line(-std::floor((ascent - descent) / 3) - half, single);
}

}  // namespace office::drawing

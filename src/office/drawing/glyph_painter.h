#pragma once

#include <cairo.h>

#include <cstddef>
#include <memory>

#include "office/drawing/metafile.h"

namespace office::drawing {

/// Paints texts whose characters have their places, in fonts of a whole number of pixels with each
/// character beginning at a whole one, as LibreOffice does. For one thread.
class GlyphPainter {
public:
    /// On a context that is not scaled; the scales lead from the picture to its pixels.
    GlyphPainter(cairo_t* context, double across, double down);
    GlyphPainter(const GlyphPainter&) = delete;
    GlyphPainter& operator=(const GlyphPainter&) = delete;
    ~GlyphPainter();

    void paint(const Metafile::Text& text, const Metafile::Font& font);

private:
    struct Layout;

    void setFont(const Metafile::Font& font);
    void setSource(const Metafile::Colour& colour);
    void paintGlyphs(const Metafile::Text& text);
    void paintLines(const Metafile::Text& text, const Metafile::Font& font);

    cairo_t* context_;
    double across_;
    double down_;
    std::unique_ptr<Layout> layout_;
};

}  // namespace office::drawing

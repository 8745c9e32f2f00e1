#include "office/drawing/metafile_painter.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <numbers>

#include "office/drawing/glyph_painter.h"
#include "office/drawing/metafile.h"
#include "office/drawing/released_by.h"

namespace office::drawing {

namespace {

/// Where LibreOffice draws lines, so that thin ones cover whole pixels.
constexpr double middleOfPixel = 0.5;
constexpr double thinnestLine = 1;

using Pattern = std::unique_ptr<cairo_pattern_t, ReleasedBy<&cairo_pattern_destroy>>;

cairo_line_join_t joinOf(Metafile::Pen::Join join) {
    switch (join) {
        case Metafile::Pen::Join::Miter:
            return CAIRO_LINE_JOIN_MITER;
        case Metafile::Pen::Join::Round:
            return CAIRO_LINE_JOIN_ROUND;
        case Metafile::Pen::Join::None:
        case Metafile::Pen::Join::Bevel:
            break;
    }
    return CAIRO_LINE_JOIN_BEVEL;
}

cairo_line_cap_t capOf(Metafile::Pen::Cap cap) {
    switch (cap) {
        case Metafile::Pen::Cap::Round:
            return CAIRO_LINE_CAP_ROUND;
        case Metafile::Pen::Cap::Square:
            return CAIRO_LINE_CAP_SQUARE;
        case Metafile::Pen::Cap::Butt:
            break;
    }
    return CAIRO_LINE_CAP_BUTT;
}

/// Whether it is a rectangle along the axes.
bool isUpright(const Metafile::Line& line) {
    const auto& points = line.points;
    if (!line.isControl.empty() || points.size() < 4 || points.size() > 5) return false;
    const auto isOn = [&](double Metafile::Point::*coordinate, std::size_t one, std::size_t other) {
        return points[one].*coordinate == points[other].*coordinate;
    };
    const auto x = &Metafile::Point::x;
    const auto y = &Metafile::Point::y;
    if (points.size() == 5 && !(isOn(x, 0, 4) && isOn(y, 0, 4))) return false;
    return (isOn(y, 0, 1) && isOn(x, 1, 2) && isOn(y, 2, 3) && isOn(x, 3, 0)) ||
           (isOn(x, 0, 1) && isOn(y, 1, 2) && isOn(x, 2, 3) && isOn(y, 3, 0));
}

class Painter {
public:
    Painter(const Metafile& metafile, cairo_t* context, double width, double height)
        : metafile_(metafile),
          context_(context),
          across_(width / metafile.width),
          down_(height / metafile.height),
          glyphs_(context, across_, down_) {
        cairo_set_fill_rule(context, CAIRO_FILL_RULE_EVEN_ODD);
    }

    void paint() {
        for (const Metafile::Operation& operation : metafile_.operations) {
            if (operation.clip != clip_) setClip(operation.clip);
            std::visit([this](const auto& what) { paint(what); }, operation.what);
        }
    }

private:
    [[nodiscard]] Metafile::Point mapped(const Metafile::Point& point) const {
        return {point.x * across_, point.y * down_};
    }

    void setClip(std::size_t clip) {
        cairo_reset_clip(context_);
        for (const Metafile::Outline& outline : metafile_.clips[clip]) {
            cairo_new_path(context_);
            if (outline.size() == 1 && isUpright(outline.front()))
                traceWholePixels(outline.front());
            else
                trace(outline);
            cairo_clip(context_);
        }
        clip_ = clip;
    }

    void traceWholePixels(const Metafile::Line& rectangle) {
        const Metafile::Point one = mapped(rectangle.points[0]);
        const Metafile::Point other = mapped(rectangle.points[2]);
        const double left = std::floor(std::min(one.x, other.x));
        const double top = std::floor(std::min(one.y, other.y));
        cairo_rectangle(context_, left, top, std::ceil(std::max(one.x, other.x)) - left,
                        std::ceil(std::max(one.y, other.y)) - top);
    }

    void trace(const Metafile::Outline& outline) {
        for (const Metafile::Line& line : outline) {
            cairo_new_sub_path(context_);
            const auto at = [&](std::size_t i) {
                return mapped(line.points[std::min(i, line.points.size() - 1)]);
            };
            for (std::size_t i = 0; i < line.points.size(); ++i) {
                const Metafile::Point point = at(i);
                if (i < line.isControl.size() && line.isControl[i]) {
                    const Metafile::Point second = at(i + 1);
                    const Metafile::Point end = at(i + 2);
                    cairo_curve_to(context_, point.x, point.y, second.x, second.y, end.x, end.y);
                    i += 2;
                } else {
                    cairo_line_to(context_, point.x, point.y);
                }
            }
            if (line.isClosed) cairo_close_path(context_);
        }
    }

    void setSource(const Metafile::Colour& colour) {
        cairo_set_source_rgb(context_, colour.red, colour.green, colour.blue);
    }

    /// Across what the path covers.
    void setSource(const Metafile::Gradient& gradient) {
        double left = 0;
        double top = 0;
        double right = 0;
        double bottom = 0;
        cairo_path_extents(context_, &left, &top, &right, &bottom);
        const double angle = gradient.angle * std::numbers::pi / 180;
        const double aside = std::sin(angle);
        const double down = std::cos(angle);
        const double half =
            (std::abs(aside) * (right - left) + std::abs(down) * (bottom - top)) / 2;
        const double x = (left + right) / 2;
        const double y = (top + bottom) / 2;
        const Pattern pattern(cairo_pattern_create_linear(x - aside * half, y - down * half,
                                                          x + aside * half, y + down * half));
        const auto stop = [&](double at, const Metafile::Colour& colour) {
            cairo_pattern_add_color_stop_rgb(pattern.get(), at, colour.red, colour.green,
                                             colour.blue);
        };
        stop(gradient.border, gradient.from);
        stop(1, gradient.to);
        cairo_set_source(context_, pattern.get());
    }

    void fill(std::monostate) {}
    template <class Fill>
    void fill(const Fill& fill) {
        setSource(fill);
        cairo_fill_preserve(context_);
    }

    void stroke(const Metafile::Pen& pen) {
        setSource(pen.colour);
        cairo_set_line_width(context_, std::max(thinnestLine, pen.width * across_));
        cairo_set_line_join(context_, joinOf(pen.join));
        cairo_set_line_cap(context_, capOf(pen.cap));
        std::vector<double> dashes = pen.dashes;
        for (double& dash : dashes) dash *= across_;
        cairo_set_dash(context_, dashes.data(), static_cast<int>(dashes.size()), 0);
        cairo_stroke(context_);
    }

    void paint(const Metafile::Shape& shape) {
        cairo_new_path(context_);
        trace(shape.outline);
        std::visit([this](const auto& what) { fill(what); }, shape.fill);
        cairo_new_path(context_);
        if (!shape.pen) return;
        cairo_save(context_);
        cairo_translate(context_, middleOfPixel, middleOfPixel);
        trace(shape.outline);
        cairo_restore(context_);
        stroke(*shape.pen);
    }
    void paint(const Metafile::Text& text) { glyphs_.paint(text, metafile_.fonts[text.font]); }
    void paint(const Metafile::Veil& veil) {
        cairo_push_group(context_);
        veils_.push_back(veil.opacity);
    }
    void paint(const Metafile::EndOfVeil&) {
        cairo_pop_group_to_source(context_);
        cairo_paint_with_alpha(context_, veils_.back());
        veils_.pop_back();
        // The context has the clip again that it had before the veil.
        clip_ = anyClip;
    }

    static constexpr std::size_t anyClip = static_cast<std::size_t>(-1);

    const Metafile& metafile_;
    cairo_t* context_;
    double across_;
    double down_;
    GlyphPainter glyphs_;
    std::size_t clip_ = 0;
    std::vector<double> veils_;
};

}  // namespace

Painting paintingOfMetafile(const std::string& metafile) {
    auto read = std::make_shared<const Metafile>(readMetafile(metafile));
    if (!read->unknown.empty()) failToDraw(read->unknown);
    return [read](cairo_t* context, double width, double height) {
        Painter(*read, context, width, height).paint();
    };
}

}  // namespace office::drawing

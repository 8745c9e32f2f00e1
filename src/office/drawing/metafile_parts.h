#pragma once

#include <optional>

#include "office/drawing/metafile.h"
#include "office/drawing/metafile_values.h"

namespace office::drawing {

/// How coordinates become those of the picture.
struct Mapping {
    double originX = 0;
    double originY = 0;
    double scaleX = 1;
    double scaleY = 1;

    [[nodiscard]] Metafile::Point point(double x, double y) const {
        return {(x + originX) * scaleX, (y + originY) * scaleY};
    }
};

/// A font, and whether the texts in it are written in units of two bytes.
struct ReadFont {
    Metafile::Font font;
    bool hasWideCharacters = false;
};

/// The parts of a metafile's actions that depend on little else. Each throws `Unknown` for what
/// can't be drawn.
[[nodiscard]] Mapping readMapping(Values values, const Mapping& outer);
[[nodiscard]] Metafile::Colour readColour(Values& values);
/// None where nothing is drawn.
[[nodiscard]] std::optional<Metafile::Colour> readOptionalColour(Values& values);
[[nodiscard]] Metafile::Gradient readGradient(Values values);
[[nodiscard]] Metafile::Pen readPen(Values values, const Metafile::Colour& colour, double scale);
[[nodiscard]] ReadFont readFont(Values values, double scale);

}  // namespace office::drawing

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "office/drawing/metafile.h"
#include "office/drawing/metafile_values.h"

namespace office::drawing {

inline constexpr std::string_view magicOfMetafile = "VCLMTF";

/// Written as the colour of a line along a text that has the text's own.
inline constexpr std::uint32_t colourOfText = 0xFFFFFFFF;

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

/// What a metafile begins with.
struct MetafileHead {
    double width = 0;
    double height = 0;
    std::uint32_t actions = 0;
};

/// A font, and whether the texts in it are written in units of two bytes.
struct ReadFont {
    Metafile::Font font;
    bool hasWideCharacters = false;
};

/// A text, and for each of its units how far from the start it ends.
struct PlacedText {
    std::int32_t x = 0;
    std::int32_t y = 0;
    std::u16string units;
    std::vector<std::int32_t> ends;
};

/// The parts of a metafile's actions that depend on little else. Each throws `Unknown` for what
/// can't be drawn.
/// Its width, height and number of actions. The actions are what is left then.
[[nodiscard]] Values sizeInMetafile(Values& values);
[[nodiscard]] MetafileHead readMetafileHead(Values& values);
[[nodiscard]] Mapping readMapping(Values values, const Mapping& outer);
[[nodiscard]] Metafile::Colour readColour(Values& values);
/// None where nothing is drawn.
[[nodiscard]] std::optional<Metafile::Colour> readOptionalColour(Values& values);
/// None where it is the colour of the text.
[[nodiscard]] std::optional<Metafile::Colour> readTextLineColour(Values& values);
[[nodiscard]] Metafile::Gradient readGradient(Values values);
[[nodiscard]] Metafile::Pen readPen(Values values, const Metafile::Colour& colour, double scale);
[[nodiscard]] ReadFont readFont(Values values, double scale);
[[nodiscard]] PlacedText readPlacedText(Values values, bool hasWideCharacters);

}  // namespace office::drawing

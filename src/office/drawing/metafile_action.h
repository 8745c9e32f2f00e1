#pragma once

#include <cstdint>

namespace office::drawing {

/// What a part of a metafile says, by LibreOffice's numbers.
enum class Action : std::uint16_t {
    None = 0,
    Line = 102,
    Rectangle = 103,
    PolyLine = 109,
    Polygon = 110,
    PolyPolygon = 111,
    TextArray = 113,
    Gradient = 125,
    ClipRegion = 128,
    IntersectRectangle = 129,
    IntersectRegion = 130,
    LineColour = 132,
    FillColour = 133,
    TextColour = 134,
    TextFillColour = 135,
    TextAlign = 136,
    MapMode = 137,
    Font = 138,
    Push = 139,
    Pop = 140,
    Transparent = 142,
    ReferencePoint = 144,
    TextLineColour = 145,
    FloatTransparent = 147,
    GradientOfOutline = 148,
    LayoutMode = 149,
    TextLanguage = 150,
    OverlineColour = 151,
    Comment = 512
};

}  // namespace office::drawing

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

/// What a push keeps until the pop that belongs to it.
constexpr std::uint16_t pushesAll = 0xFFFF;
constexpr std::uint16_t pushesLine = 0x0001;
constexpr std::uint16_t pushesFill = 0x0002;
constexpr std::uint16_t pushesFont = 0x0004;
constexpr std::uint16_t pushesTextColour = 0x0008;
constexpr std::uint16_t pushesMapMode = 0x0010;
constexpr std::uint16_t pushesClip = 0x0020;
constexpr std::uint16_t pushesTextLine = 0x0400;

}  // namespace office::drawing

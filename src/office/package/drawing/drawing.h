#pragma once

#include <pugixml.hpp>

#include <cstdint>
#include <string>
#include <string_view>

#include "office/colour.h"
#include "office/units.h"

/// The markup of shapes, pictures and charts, which all kinds of files have in common.
namespace office::package {

[[nodiscard]] long long emuOf(double points);
/// The schema's order of what says how a shape looks.
inline constexpr std::string_view looksOrder =
    "xfrm custGeom prstGeom noFill solidFill gradFill blipFill pattFill grpFill ln effectLst "
    "effectDag scene3d sp3d extLst";
/// An effect of what looks as `looks` say, made in its place. Effects in the order of a graph are
/// left to their maker: a list takes their place.
[[nodiscard]] pugi::xml_node effectFor(pugi::xml_node looks, std::string_view name);
/// The plain colour that an element holds, and its markup; 0xBBGGRR.
[[nodiscard]] std::int32_t colourIn(pugi::xml_node holder);
[[nodiscard]] std::string colourMarkup(std::int32_t colour);

}  // namespace office::package

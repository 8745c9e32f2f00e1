#pragma once

#include <pugixml.hpp>

#include "office/package/xml.h"

namespace office::package {

/// Writes out what a chart leaves to its program where a presentation takes other looks for it than
/// a workbook: ground and frame of the whole, and how thick its lines are. `thinLine` is the width
/// of the finest line of the workbook's theme in English metric units; 0 if it has no theme.
void writeLooks(pugi::xml_node chartSpace, int thinLine);

/// Says how the categories along an axis are shown that is of dates or has a format of its own,
/// where they are stored as plain numbers: in a presentation there are no cells to tell. An axis
/// that follows its cells gets the format that is stored for them.
void writeAxisFormats(pugi::xml_node chartSpace);

/// The width of the finest line of a theme; 0 for one that says none.
[[nodiscard]] int thinLineOf(const Xml& theme);

}  // namespace office::package

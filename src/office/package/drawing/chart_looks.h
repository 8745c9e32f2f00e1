#pragma once

#include <pugixml.hpp>

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "office/package/xml.h"

namespace office::package {

/// The finest line of a theme.
struct ThinLine {
    /// In English metric units; 0 for a theme that says none.
    int width = 0;
    /// What becomes of the colour that is drawn with it: "shade" and "95000". Nothing where the
    /// line isn't of that colour alone.
    std::optional<std::vector<std::pair<std::string, std::string>>> changes = {};
};
[[nodiscard]] ThinLine thinLineOf(const Xml& theme);

/// Writes out what a chart leaves to its program where a presentation takes other looks for it than
/// a workbook: ground and frame of the whole, how thick its lines are, and of which colour those of
/// its series. `thinLine` is that of the workbook's theme.
void writeLooks(pugi::xml_node chartSpace, const ThinLine& thinLine);

/// Says how the categories along an axis are shown that is of dates or has a format of its own,
/// where they are stored as plain numbers: in a presentation there are no cells to tell. An axis
/// that follows its cells gets the format that is stored for them.
void writeAxisFormats(pugi::xml_node chartSpace);

}  // namespace office::package

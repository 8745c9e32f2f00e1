#pragma once

#include <pugixml.hpp>

namespace office::package {

/// Puts the chart in the drawing of a chart sheet where every program shows it. Excel makes the
/// chart as large as its window whatever the file says, so some files have it begin left of or
/// above the page, or give it no size; LibreOffice shows nothing then. False if nothing was wrong.
bool placeOnPage(pugi::xml_node drawing);

}  // namespace office::package

#pragma once

#include <pugixml.hpp>

namespace office::package {

/// What a program takes for a flag that a chart leaves out. Excel 2007 took other values than the
/// standard's, and programs go by the file that the chart stands in.
enum class FlagDefaults { Standard, Excel2007 };

/// Writes the flags out that a chart leaves out, so that they mean the same in another file.
void writeFlags(pugi::xml_node chartSpace, FlagDefaults defaults);

}  // namespace office::package

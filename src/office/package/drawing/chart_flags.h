#pragma once

#include <pugixml.hpp>

#include <string_view>

namespace office::package {

/// What a program takes for a flag that a chart leaves out. Excel 2007 took other values than the
/// standard's, and programs go by the file that the chart stands in.
enum class FlagDefaults { Standard, Excel2007 };

/// Writes the flags out that a chart leaves out, so that they mean the same in another file.
void writeFlags(pugi::xml_node chartSpace, FlagDefaults defaults);

/// The child of an element of a chart, made where the schema wants it if it isn't there.
/// `order` names the children of that element as the schema does, parted by blanks.
pugi::xml_node chartChild(pugi::xml_node parent, std::string_view name, std::string_view order);

/// The children of the root.
inline constexpr std::string_view chartSpaceOrder =
    "date1904 lang roundedCorners AlternateContent style clrMapOvr pivotSource protection chart "
    "spPr txPr externalData printSettings userShapes extLst";

/// Those of an axis.
inline constexpr std::string_view axisOrder =
    "axId scaling delete axPos majorGridlines minorGridlines title numFmt majorTickMark "
    "minorTickMark tickLblPos spPr txPr crossAx crosses crossesAt auto lblAlgn lblOffset "
    "tickLblSkip tickMarkSkip noMultiLvlLbl";

}  // namespace office::package

#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "office/copied.h"
#include "office/package/xml.h"

namespace office::package {

/// The code of the number format of a cell, its place from 0; "General" if it has none.
using FormatOfCell =
    std::function<std::string(const std::string& sheet, std::int32_t row, std::int32_t column)>;

/// Brings what a chart remembers of its cells up to what they hold: some programs fill the cells
/// of a template and leave its charts as they were. What agrees stays as it is, and so does what
/// the chart draws from anything but fixed cells. Numbers whose format isn't remembered get that of
/// their cells.
void rememberCells(const Xml& chart, const Copied& copied, const FormatOfCell& formatOf);

}  // namespace office::package

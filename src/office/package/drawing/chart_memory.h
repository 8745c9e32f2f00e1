#pragma once

#include "office/copied.h"
#include "office/package/xml.h"

namespace office::package {

/// Brings what a chart remembers of its cells up to what they hold: some programs fill the cells
/// of a template and leave its charts as they were. What agrees stays as it is, and so does what
/// the chart draws from anything but fixed cells.
void rememberCells(const Xml& chart, const Copied& copied);

}  // namespace office::package

#pragma once

#include "office/package/workbook/formula_reach.h"
#include "office/package/xml.h"

namespace office::package {

/// Puts the values that a chart remembers in place of its references to what is gone.
/// `PackageError` if it remembers none.
void keepChartValues(const Xml& chart, const FormulaReach& reach);

}  // namespace office::package

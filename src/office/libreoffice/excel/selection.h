#pragma once

#include "office/libreoffice/desk.h"
#include "office/libreoffice/excel/calc_document.h"
#include "office/value.h"

namespace libreoffice::excel {

/// What is selected in a workbook: a range, or the chart object of a selected chart; empty for
/// anything else.
[[nodiscard]] office::Value selectionIn(const DeskPtr& desk, const BookPtr& book);

/// The chart sheet on top, the chart that is selected, or the one being edited; empty if there is
/// none.
[[nodiscard]] office::Value activeChartOf(const DeskPtr& desk, const BookPtr& book);

}  // namespace libreoffice::excel

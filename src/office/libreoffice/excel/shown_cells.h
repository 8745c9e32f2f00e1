#pragma once

#include <vector>

#include "office/libreoffice/excel/calc_document.h"
#include "office/suite.h"

namespace libreoffice::excel {

/// Looks into the workbook's file for sparklines, of which the suite tells nothing: once for each
/// sheet that has such cells.
[[nodiscard]] std::vector<office::ShownCells> shownCells(
    CalcDocument& book, const std::vector<office::PasteItem>& items);

}  // namespace libreoffice::excel

#pragma once

#include <vector>

#include "office/libreoffice/excel/sheet_record.h"

namespace libreoffice::excel {

/// All numbers in the blocks, the least first.
[[nodiscard]] std::vector<double> sortedNumbers(SheetRecord& sheet,
                                                const std::vector<model::CellBlock>& blocks);

/// The number below which this share of all numbers is. There has to be one.
[[nodiscard]] double percentile(const std::vector<double>& sorted, double share);

}  // namespace libreoffice::excel

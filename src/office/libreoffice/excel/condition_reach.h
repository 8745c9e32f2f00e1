#pragma once

#include "office/libreoffice/excel/cell_conditions.h"
#include "office/libreoffice/excel/sheet_record.h"

namespace libreoffice::excel {

/// Whether a condition, on the cells of a block that it is for, reads cells around the block or of
/// another sheet, or may do so by a name or by a function that finds cells.
[[nodiscard]] bool readsAround(SheetRecord& sheet, const model::CellBlock& block,
                               const CellCondition& condition);

}  // namespace libreoffice::excel

#pragma once

#include "office/libreoffice/excel/cell_conditions.h"
#include "office/libreoffice/excel/sheet_record.h"

namespace libreoffice::excel {

/// Whether a condition, on the cells of a block that it is for, reads cells around the block or of
/// another sheet, or a name does for it.
[[nodiscard]] bool readsAround(SheetRecord& sheet, const model::CellBlock& block,
                               const CellCondition& condition);

}  // namespace libreoffice::excel

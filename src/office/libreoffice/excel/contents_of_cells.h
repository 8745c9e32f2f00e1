#pragma once

#include "office/cell_contents.h"
#include "office/libreoffice/excel/sheet_record.h"

namespace libreoffice::excel {

/// What cells hold by now, in a few calls however many they are.
[[nodiscard]] office::CellContents readContents(SheetRecord& sheet, const model::CellBlock& block);

}  // namespace libreoffice::excel

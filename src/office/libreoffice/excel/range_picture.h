#pragma once

#include "office/libreoffice/excel/sheet_record.h"

namespace libreoffice::excel {

/// A picture of cells as they look on the sheet, charts on them included. The user's clipboard
/// stays, his selection is put back. `office::Failure` 1004 if there is nothing to take a picture
/// of.
[[nodiscard]] model::PicturePtr takePictureOfCells(
    SheetRecord& sheet, const uno::Reference<css::table::XCellRange>& cells,
    const model::CellBlock& block);

}  // namespace libreoffice::excel

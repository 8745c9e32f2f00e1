#pragma once

#include "office/libreoffice/excel/picture_maker.h"
#include "office/libreoffice/excel/sheet_record.h"

namespace libreoffice::excel {

/// A picture of cells of this size as they look on the sheet, charts on them included, in the
/// suite's own vector format. The user's clipboard and window stay as they were.
/// `office::Failure` 1004 if there is nothing to take a picture of.
[[nodiscard]] uno::Sequence<sal_Int8> takePictureOfCells(
    SheetRecord& sheet, const uno::Reference<css::table::XCellRange>& cells,
    const model::CellBlock& block, const css::awt::Size& size);

}  // namespace libreoffice::excel

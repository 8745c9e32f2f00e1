#pragma once

#include "office/libreoffice/excel/picture_maker.h"
#include "office/libreoffice/excel/sheet_record.h"

namespace libreoffice::excel {

/// In the suite's own vector format, with the size of the cells.
struct CellsPicture {
    uno::Sequence<sal_Int8> metafile;
    PictureSize size;
};

/// A picture of cells as they look on the sheet, charts on them included. The user's clipboard
/// stays, his selection is put back. `office::Failure` 1004 if there is nothing to take a picture
/// of.
[[nodiscard]] CellsPicture takePictureOfCells(SheetRecord& sheet,
                                              const uno::Reference<css::table::XCellRange>& cells,
                                              const model::CellBlock& block);

}  // namespace libreoffice::excel

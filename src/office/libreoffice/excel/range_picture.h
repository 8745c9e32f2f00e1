#pragma once

#include "office/libreoffice/desk.h"
#include "office/libreoffice/excel/calc_document.h"

namespace libreoffice::excel {

/// A picture of cells as they look on the sheet, charts on them included. The user's clipboard
/// stays, his selection is put back.
///
/// Whole rows and columns end with the used part of the sheet. `office::Failure` 1004 if there is
/// nothing to take a picture of.
[[nodiscard]] CopiedPicture takePictureOfCells(CalcDocument& book, const SheetPtr& sheet,
                                               const CellBlock& block);

/// The cells as LibreOffice selects them: a range, or a collection of ranges.
[[nodiscard]] uno::Any selectionOf(CalcDocument& book, const SheetPtr& sheet,
                                   const CellBlocks& blocks);

}  // namespace libreoffice::excel

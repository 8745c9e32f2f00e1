#pragma once

#include <vector>

#include "office/drawing/mended_metafile.h"
#include "office/libreoffice/excel/sheet_record.h"

namespace libreoffice::excel {

/// Whether cells of a sheet have an indent that was set for them, and not by a style alone.
[[nodiscard]] bool hasIndents(const SheetRecord& sheet);

/// The filled cells of a block whose texts are set at the right, in from the edge. None on a sheet
/// that is read from right to left, and none of a block of so many cells that asking for their
/// places would take longer than the picture.
[[nodiscard]] std::vector<office::drawing::IndentedCell> rightIndentsOn(
    const SheetRecord& sheet, const model::CellBlock& block);

}  // namespace libreoffice::excel

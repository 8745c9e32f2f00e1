#pragma once

#include <vector>

#include "office/drawing/mended_metafile.h"
#include "office/libreoffice/excel/sheet_record.h"

namespace libreoffice::excel {

/// Whether cells of a sheet have an indent.
[[nodiscard]] bool hasIndents(const SheetRecord& sheet);

/// The cells of a block whose texts are set at the right, in from the edge. None of cells that are
/// merged, and none on a sheet that is read from right to left.
[[nodiscard]] std::vector<office::drawing::IndentedCell> rightIndentsOn(
    const SheetRecord& sheet, const model::CellBlock& block);

}  // namespace libreoffice::excel

#pragma once

#include "office/libreoffice/excel/sheet_record.h"

namespace libreoffice::excel {

/// The block of a sheet that holds something; its first cell if nothing does.
[[nodiscard]] CellBlock usedBlock(const SheetPtr& sheet);

/// The block of filled cells around a block, bounded by empty rows and columns.
[[nodiscard]] CellBlock regionAround(const SheetPtr& sheet, const CellBlock& block);

enum class Direction { Up = -4162, Down = -4121, ToLeft = -4159, ToRight = -4161 };

/// Where a jump from a cell ends: at the edge of the filled cells that it stands in, at the next
/// filled one, or at the edge of the sheet.
[[nodiscard]] CellBlock endOf(const SheetPtr& sheet, const CellBlock& cell, Direction direction);

}  // namespace libreoffice::excel

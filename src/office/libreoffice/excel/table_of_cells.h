#pragma once

#include <optional>

#include "office/libreoffice/excel/sheet_record.h"
#include "office/table_look.h"

namespace libreoffice::excel {

/// More are no table that anybody reads on a slide.
constexpr std::size_t mostCellsOfTable = 5000;

/// Cells, which are those of a block, as they are seen, in a number of calls that grows with the
/// formats in them and not with the cells. No merged one sticks out of them. The user's clipboard
/// and window stay as they were. `office::Failure` 1004 if nothing of them is shown, or more cells
/// than that.
[[nodiscard]] office::TableLook tableOfCells(SheetRecord& sheet,
                                             const uno::Reference<css::table::XCellRange>& cells,
                                             const model::CellBlock& block, std::size_t mostCells);

/// Whether more of a block is shown than that, merged cells that stick out included.
[[nodiscard]] bool isTooLargeForTable(SheetRecord& sheet, const model::CellBlock& block,
                                      std::size_t mostCells);
/// Whether a block that is not too large shows more columns than that.
[[nodiscard]] bool isTooWideForTable(SheetRecord& sheet, const model::CellBlock& block,
                                     std::size_t mostColumns);

/// Whether nothing is seen of cells. Conditions may dress up empty ones too.
[[nodiscard]] bool areBlank(SheetRecord& sheet,
                            const uno::Reference<css::table::XCellRange>& cells);

/// One cell of the size of cells of which nothing is seen; nothing for others. They may be some
/// that conditions would dress up: then the table tells.
[[nodiscard]] std::optional<office::TableLook> tableOfBlankCells(
    SheetRecord& sheet, const uno::Reference<css::table::XCellRange>& cells);

}  // namespace libreoffice::excel

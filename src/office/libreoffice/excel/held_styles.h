#pragma once

#include <rtl/ustring.hxx>

#include <vector>

#include "office/libreoffice/excel/cell_conditions.h"
#include "office/libreoffice/excel/sheet_record.h"

namespace libreoffice::excel {

/// A style of conditional formats, and where among some cells their conditions hold.
struct HeldStyle {
    rtl::OUString name;
    /// A copy makes each style do so.
    bool takesAfterParent;
    std::vector<model::CellBlock> cells;
    /// Where nothing tells whether they do.
    std::vector<model::CellBlock> beyond;
};

/// The styles of those of the conditions on a block that a picture of its copy shows otherwise
/// than the sheet does: it sees the cells around the block empty, and where a condition holds it
/// takes what the style leaves to the cell from the style of all cells. Nothing where the picture
/// is right, and none of a style of which the page of the workbook doesn't tell where it is.
[[nodiscard]] std::vector<HeldStyle> heldStylesOn(SheetRecord& sheet, const model::CellBlock& block,
                                                  const std::vector<CellCondition>& conditions);

/// Whether a picture of a block may show conditional formats wrongly: they go by cells around it,
/// and `heldStylesOn` finds none of their styles.
[[nodiscard]] bool mayBeMisdrawn(SheetRecord& sheet, const model::CellBlock& block);

}  // namespace libreoffice::excel

#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "office/libreoffice/excel/number_formats.h"
#include "office/libreoffice/excel/text_widths.h"
#include "office/table_look.h"

namespace libreoffice::excel {

/// What a sheet goes by where a text is wider than its cell.
struct CellValue {
    std::optional<double> number;
    std::int32_t numberFormat = 0;
    bool shrinksToFit = false;
    bool isError = false;
    /// Of what is askew on the sheet: the turn in which it stands up.
    std::optional<std::int32_t> uprightTurn;
};

/// Does with texts that are wider than their cells what a sheet does, so that no row of the table
/// grows because a text breaks that has one line on the sheet. It runs over into empty cells,
/// which the cell then spans, and what there is no room for isn't seen; numbers are rounded if
/// their format lets them, and otherwise hidden by #; some texts are written smaller. So is what is
/// askew on the sheet, where it has more room; it stands up where that leaves it larger.
void fitTexts(office::TableLook& table, const std::vector<CellValue>& values, TextWidths& widths,
              NumberFormats& formats);

}  // namespace libreoffice::excel

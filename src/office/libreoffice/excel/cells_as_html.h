#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "office/table_look.h"

namespace libreoffice::excel {

/// A cell as the suite writes it as HTML, where conditional formats are applied and numbers are
/// texts. Not in it: the font's name and size, whether the text wraps or is turned, the lines, the
/// number formats of conditions. Merged cells count the hidden columns and rows too.
struct HtmlCell {
    office::CellLook look;
    /// Nothing for letters of the automatic colour, and for a text that stands where it stands by
    /// itself.
    std::optional<std::int32_t> fontColour;
    std::optional<office::CellLook::Down> down;
    /// The value of a number or of a formula's result that is one; 0 for one that is an error.
    std::optional<double> number;
};

struct HtmlRow {
    /// Cells that a merged one covers are left out.
    std::vector<HtmlCell> cells;
    /// In the screen's pixels; nothing if the suite doesn't say it for the row alone.
    std::optional<double> heightPx;
};

/// Hidden columns and rows are left out.
struct CellsAsHtml {
    std::vector<double> columnWidthsPx;
    std::vector<HtmlRow> rows;
};

[[nodiscard]] CellsAsHtml readCellsAsHtml(std::string_view html);

}  // namespace libreoffice::excel

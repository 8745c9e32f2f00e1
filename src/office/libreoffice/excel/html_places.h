#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "office/libreoffice/excel/cells_as_html.h"
#include "office/libreoffice/excel/sheet_record.h"
#include "office/libreoffice/excel/shown_lines.h"

namespace libreoffice::excel {

/// Where the cells of rows of HTML stand among the lines that are shown: rows leave out what merged
/// cells of other rows cover. A row is right once those above that reach into it have been taken.
class HtmlPlaces {
public:
    /// Cells among the shown lines, by their places there.
    struct Span {
        std::size_t firstColumn;
        std::size_t columns;
        std::size_t firstRow;
        std::size_t rows;
    };

    explicit HtmlPlaces(const ShownLines& shown)
        : shown_(shown),
          isTaken_(shown.rows.size() * shown.columns.size()) {}

    /// The first column of a row, from a column on, that no cell has taken; the number of columns
    /// if there is none.
    [[nodiscard]] std::size_t freeFrom(std::size_t row, std::size_t column) const;
    /// What is shown of cells on the sheet, which nothing else stands in from here on.
    Span take(const model::CellBlock& cells);
    /// Merged cells that cover a part of a row, begin in a hidden line, and are left out of the
    /// HTML with what they hold; not those that have been taken.
    [[nodiscard]] std::vector<model::CellBlock> leftOutOf(const HtmlRow& html, std::size_t row,
                                                          const SheetRecord& sheet) const;

private:
    [[nodiscard]] bool fills(const HtmlRow& html, std::size_t row) const;

    const ShownLines& shown_;
    std::vector<bool> isTaken_;
};

}  // namespace libreoffice::excel

#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace office {

struct CellContent {
    enum class Kind { Blank, Number, Text, Error };

    Kind kind = Kind::Blank;
    double number = 0;
    std::string text;
};

/// What a block of cells holds, and which of its rows and columns are shown. Rows and columns at
/// its end that nothing is written in may be left out.
struct CellContents {
    /// Row by row.
    std::vector<CellContent> cells;
    std::vector<bool> showsRow;
    std::vector<bool> showsColumn;

    [[nodiscard]] bool has(std::size_t row, std::size_t column) const {
        return row < showsRow.size() && column < showsColumn.size();
    }
    [[nodiscard]] const CellContent& at(std::size_t row, std::size_t column) const {
        return cells[row * showsColumn.size() + column];
    }
};

}  // namespace office

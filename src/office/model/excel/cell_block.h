#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace office::model::excel {

/// A rectangle of cells, its edges counted from 0 and inclusive.
struct CellBlock {
    static constexpr std::int32_t lastColumnOfSheet = 16383;
    static constexpr std::int32_t lastRowOfSheet = 1048575;

    std::int32_t firstColumn = 0;
    std::int32_t firstRow = 0;
    std::int32_t lastColumn = 0;
    std::int32_t lastRow = 0;

    [[nodiscard]] std::int32_t columns() const { return lastColumn - firstColumn + 1; }
    [[nodiscard]] std::int32_t rows() const { return lastRow - firstRow + 1; }
    [[nodiscard]] double cells() const { return double{1} * columns() * rows(); }
    [[nodiscard]] bool spansAllRows() const { return firstRow == 0 && lastRow == lastRowOfSheet; }
    [[nodiscard]] bool spansAllColumns() const {
        return firstColumn == 0 && lastColumn == lastColumnOfSheet;
    }

    bool operator==(const CellBlock&) const = default;

    static CellBlock cell(std::int32_t row, std::int32_t column) {
        return {column, row, column, row};
    }
    static CellBlock wholeSheet() { return {0, 0, lastColumnOfSheet, lastRowOfSheet}; }
};

using CellBlocks = std::vector<CellBlock>;

[[nodiscard]] std::optional<CellBlock> intersection(const CellBlock& one, const CellBlock& other);
/// The smallest block around both.
[[nodiscard]] CellBlock around(const CellBlock& one, const CellBlock& other);

/// The blocks that both have in common.
[[nodiscard]] CellBlocks intersection(const CellBlocks& one, const CellBlocks& other);

/// "AB" as the column's place from 0; nothing if it is no column.
[[nodiscard]] std::optional<std::int32_t> columnOf(std::string_view letters);

/// "A1", "$A$1:$B$2", "A:H", "1:5".
[[nodiscard]] std::optional<CellBlock> blockOf(std::string_view text);
/// Blocks joined by commas.
[[nodiscard]] std::optional<CellBlocks> blocksOf(std::string_view text);

/// "$A$1:$B$2"; whole columns as "$A:$B", whole rows as "$1:$2".
[[nodiscard]] std::string addressOf(const CellBlock& block);
[[nodiscard]] std::string addressOf(const CellBlocks& blocks);

/// The parts of a text between separators that stand outside of single quotes.
[[nodiscard]] std::vector<std::string_view> splitOutsideQuotes(std::string_view text,
                                                               std::string_view separators);

enum class Notation { A1, R1C1 };

/// Blocks of one sheet, by the sheet's name: what a formula refers to.
struct CellsOfSheet {
    std::string sheet;
    CellBlocks blocks;
};
/// "=Sales!$A$1:$B$2,Sales!$C$1" or "=Sales!R1C1:R2C2". Nothing if the formula is anything but
/// fixed cells of one sheet.
[[nodiscard]] std::optional<CellsOfSheet> cellsOfFormula(std::string_view formula,
                                                         Notation notation);

/// A text with the sheet's name ahead of it: "Sheet!A1", "'My sheet'!Total".
struct OnSheet {
    std::string sheet;
    std::string text;
};
/// Nothing if the text names no sheet.
[[nodiscard]] std::optional<OnSheet> splitSheet(std::string_view text);

/// A sheet's name as formulas write it: in quotes where it needs them.
[[nodiscard]] std::string quotedSheet(const std::string& name);

}  // namespace office::model::excel

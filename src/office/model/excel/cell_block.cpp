#include "office/model/excel/cell_block.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <utility>

#include "office/text.h"

namespace office::model::excel {

namespace {

bool isLetter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// One corner of a block; a part that the text leaves out is nothing.
struct Corner {
    std::optional<std::int32_t> column;
    std::optional<std::int32_t> row;
};

/// A number from 1 as a place from 0.
std::optional<std::int32_t> placeOf(std::string_view digits, std::int32_t last) {
    std::int32_t number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error != std::errc{} || end != digits.data() + digits.size()) return std::nullopt;
    if (number < 1 || number > last + 1) return std::nullopt;
    return number - 1;
}

std::optional<Corner> cornerOf(std::string_view text) {
    Corner corner;
    if (text.starts_with('$') && text.size() > 1 && isLetter(text[1])) text.remove_prefix(1);
    const auto letters = static_cast<std::size_t>(
        std::find_if_not(text.begin(), text.end(), isLetter) - text.begin());
    if (letters > 0) {
        corner.column = columnOf(text.substr(0, letters));
        if (!corner.column) return std::nullopt;
        text.remove_prefix(letters);
    }
    if (text.starts_with('$')) text.remove_prefix(1);
    if (!text.empty()) {
        if (!std::all_of(text.begin(), text.end(), isDigit)) return std::nullopt;
        corner.row = placeOf(text, CellBlock::lastRowOfSheet);
        if (!corner.row) return std::nullopt;
    }
    if (!corner.column && !corner.row) return std::nullopt;
    return corner;
}

/// "R1C2", "C3" for a whole column, "R4" for a whole row.
std::optional<Corner> cornerOfR1C1(std::string_view text) {
    Corner corner;
    const auto take = [&](char letter, std::optional<std::int32_t>& part, std::int32_t last) {
        if (!text.starts_with(letter)) return true;
        const auto end = std::min(text.find_first_not_of("0123456789", 1), text.size());
        part = placeOf(text.substr(1, end - 1), last);
        text.remove_prefix(end);
        return part.has_value();
    };
    const bool fits = take('R', corner.row, CellBlock::lastRowOfSheet) &&
                      take('C', corner.column, CellBlock::lastColumnOfSheet);
    if (!fits || !text.empty() || (!corner.row && !corner.column)) return std::nullopt;
    return corner;
}

/// What a corner leaves out it leaves out on both sides: "A:H" and "1:5" are whole columns and
/// rows.
std::optional<CellBlock> blockBetween(const std::optional<Corner>& first,
                                      const std::optional<Corner>& last) {
    if (!first || !last) return std::nullopt;
    if (first->column.has_value() != last->column.has_value()) return std::nullopt;
    if (first->row.has_value() != last->row.has_value()) return std::nullopt;
    return around({first->column.value_or(0), first->row.value_or(0),
                   first->column.value_or(CellBlock::lastColumnOfSheet),
                   first->row.value_or(CellBlock::lastRowOfSheet)},
                  {last->column.value_or(0), last->row.value_or(0),
                   last->column.value_or(CellBlock::lastColumnOfSheet),
                   last->row.value_or(CellBlock::lastRowOfSheet)});
}

std::optional<CellBlock> blockOfR1C1(std::string_view text) {
    const auto colon = text.find(':');
    const auto first = cornerOfR1C1(text.substr(0, colon));
    return blockBetween(
        first, colon == std::string_view::npos ? first : cornerOfR1C1(text.substr(colon + 1)));
}

std::string columnText(std::int32_t column) {
    std::string letters;
    for (std::int32_t rest = column + 1; rest > 0; rest = (rest - 1) / 26) {
        letters.insert(letters.begin(), static_cast<char>('A' + (rest - 1) % 26));
    }
    return letters;
}

bool needsQuotes(const std::string& name) {
    if (name.empty() || isDigit(name.front())) return true;
    const bool plain = std::all_of(name.begin(), name.end(), [](char c) {
        const bool beyondAscii = static_cast<unsigned char>(c) >= 0x80;
        return isLetter(c) || isDigit(c) || c == '_' || c == '.' || beyondAscii;
    });
    // A name that could be read as a cell is quoted too.
    return !plain || blockOf(name).has_value();
}

}  // namespace

std::optional<CellBlock> intersection(const CellBlock& one, const CellBlock& other) {
    const CellBlock common{
        std::max(one.firstColumn, other.firstColumn), std::max(one.firstRow, other.firstRow),
        std::min(one.lastColumn, other.lastColumn), std::min(one.lastRow, other.lastRow)};
    if (common.columns() < 1 || common.rows() < 1) return std::nullopt;
    return common;
}

CellBlocks intersection(const CellBlocks& one, const CellBlocks& other) {
    CellBlocks common;
    for (const CellBlock& block : one) {
        for (const CellBlock& otherBlock : other) {
            if (const auto meeting = intersection(block, otherBlock)) common.push_back(*meeting);
        }
    }
    return common;
}

CellBlock around(const CellBlock& one, const CellBlock& other) {
    return {std::min(one.firstColumn, other.firstColumn), std::min(one.firstRow, other.firstRow),
            std::max(one.lastColumn, other.lastColumn), std::max(one.lastRow, other.lastRow)};
}

std::optional<std::int32_t> columnOf(std::string_view letters) {
    std::int32_t number = 0;
    if (letters.empty() || letters.size() > 3) return std::nullopt;
    for (const char c : letters) {
        if (!isLetter(c)) return std::nullopt;
        number = number * 26 + (c >= 'a' ? c - 'a' : c - 'A') + 1;
    }
    if (number > CellBlock::lastColumnOfSheet + 1) return std::nullopt;
    return number - 1;
}

std::optional<CellBlock> blockOf(std::string_view text) {
    text = trim(text);
    const auto colon = text.find(':');
    const auto first = cornerOf(text.substr(0, colon));
    const bool isRange = colon != std::string_view::npos;
    const auto last = isRange ? cornerOf(text.substr(colon + 1)) : first;
    if (!isRange && first && (!first->column || !first->row)) return std::nullopt;
    return blockBetween(first, last);
}

std::optional<CellBlocks> blocksOf(std::string_view text) {
    CellBlocks blocks;
    for (const std::string_view part : splitOutsideQuotes(text, ",")) {
        const auto block = blockOf(part);
        if (!block) return std::nullopt;
        blocks.push_back(*block);
    }
    return blocks;
}

std::vector<std::string_view> splitOutsideQuotes(std::string_view text,
                                                 std::string_view separators) {
    std::vector<std::string_view> parts;
    bool quoted = false;
    std::size_t from = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '\'') quoted = !quoted;
        if (quoted || separators.find(text[at]) == std::string_view::npos) continue;
        parts.push_back(text.substr(from, at - from));
        from = at + 1;
    }
    parts.push_back(text.substr(from));
    return parts;
}

std::optional<CellsOfSheet> cellsOfFormula(std::string_view formula, Notation notation) {
    if (formula.starts_with('=')) formula.remove_prefix(1);
    CellsOfSheet cells;
    for (const std::string_view part : splitOutsideQuotes(formula, ",")) {
        const auto split = splitSheet(part);
        if (!split || (!cells.sheet.empty() && cells.sheet != split->sheet)) return std::nullopt;
        const auto block =
            notation == Notation::A1 ? blockOf(split->text) : blockOfR1C1(split->text);
        if (!block) return std::nullopt;
        cells.sheet = split->sheet;
        cells.blocks.push_back(*block);
    }
    return cells;
}

std::string addressOf(const CellBlock& block) {
    if (block.spansAllRows() && !block.spansAllColumns()) {
        return fmt::format("${}:${}", columnText(block.firstColumn), columnText(block.lastColumn));
    }
    if (block.spansAllColumns()) {
        return fmt::format("${}:${}", block.firstRow + 1, block.lastRow + 1);
    }
    std::string first = fmt::format("${}${}", columnText(block.firstColumn), block.firstRow + 1);
    if (block.columns() == 1 && block.rows() == 1) return first;
    return fmt::format("{}:${}${}", first, columnText(block.lastColumn), block.lastRow + 1);
}

std::string addressOf(const CellBlocks& blocks) {
    std::string all;
    for (const CellBlock& block : blocks) {
        if (!all.empty()) all += ',';
        all += addressOf(block);
    }
    return all;
}

std::optional<OnSheet> splitSheet(std::string_view text) {
    const auto mark = text.rfind('!');
    if (mark == std::string_view::npos || mark == 0) return std::nullopt;
    std::string_view sheet = text.substr(0, mark);
    OnSheet split{std::string(sheet), std::string(text.substr(mark + 1))};
    if (sheet.size() >= 2 && sheet.front() == '\'' && sheet.back() == '\'') {
        split.sheet = replaceAll(sheet.substr(1, sheet.size() - 2), "''", "'");
    }
    return split;
}

std::string quotedSheet(const std::string& name) {
    if (!needsQuotes(name)) return name;
    return "'" + replaceAll(name, "'", "''") + "'";
}

}  // namespace office::model::excel

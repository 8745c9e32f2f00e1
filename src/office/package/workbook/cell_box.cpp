#include "office/package/workbook/cell_box.h"

#include <fmt/format.h>

#include <algorithm>

namespace office::package {

namespace {

constexpr std::uint32_t letters = 26;

std::string columnName(std::uint32_t column) {
    std::string name;
    for (; column > 0; column = (column - 1) / letters)
        name.insert(name.begin(), static_cast<char>('A' + (column - 1) % letters));
    return name;
}

/// A corner as it is written; 0 for what is left out.
struct Corner {
    std::uint32_t column = 0;
    std::uint32_t row = 0;
};

std::optional<Corner> cornerOf(std::string_view text) {
    Corner corner;
    for (const char c : text) {
        const bool isLetter = (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
        if (isLetter && corner.row == 0) {
            corner.column =
                corner.column * letters + static_cast<std::uint32_t>((c | 0x20) - 'a' + 1);
        } else if (c >= '0' && c <= '9') {
            corner.row = corner.row * 10 + static_cast<std::uint32_t>(c - '0');
        } else if (c != '$') {
            return {};
        }
        if (corner.column > CellBox::lastColumn || corner.row > CellBox::lastRow) return {};
    }
    return corner;
}

}  // namespace

std::optional<CellBox> cellBox(std::string_view address) {
    const auto colon = address.find(':');
    const auto first = cornerOf(address.substr(0, colon));
    const auto last = colon == std::string_view::npos ? first : cornerOf(address.substr(colon + 1));
    if (!first || !last) return {};
    const bool isRange = colon != std::string_view::npos;
    const bool hasColumns = first->column > 0 && last->column > 0;
    const bool hasRows = first->row > 0 && last->row > 0;
    if (!(hasColumns && hasRows) && !(isRange && hasColumns != hasRows)) return {};
    CellBox box{.right = CellBox::lastColumn, .bottom = CellBox::lastRow};
    if (hasColumns) std::tie(box.left, box.right) = std::minmax(first->column, last->column);
    if (hasRows) std::tie(box.top, box.bottom) = std::minmax(first->row, last->row);
    return box;
}

std::string CellBox::name() const {
    const std::string first = fmt::format("{}{}", columnName(left), top);
    if (left == right && top == bottom) return first;
    return fmt::format("{}:{}{}", first, columnName(right), bottom);
}

std::string CellBox::nameByNumbers() const {
    if (hasWholeColumns()) return fmt::format("C{}:C{}", left, right);
    if (hasWholeRows()) return fmt::format("R{}:R{}", top, bottom);
    const std::string first = fmt::format("R{}C{}", top, left);
    if (left == right && top == bottom) return first;
    return fmt::format("{}:R{}C{}", first, bottom, right);
}

}  // namespace office::package

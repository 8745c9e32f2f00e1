#include "office/libreoffice/excel/html_places.h"

#include <algorithm>
#include <utility>

namespace libreoffice::excel {

namespace {

/// The place among the shown lines, and how many of a stretch on the sheet are shown.
std::pair<std::size_t, std::size_t> shownFrom(const std::vector<std::int32_t>& shown,
                                              std::int32_t first, std::int32_t last) {
    const auto from = std::lower_bound(shown.begin(), shown.end(), first);
    const auto to = std::upper_bound(from, shown.end(), last);
    return {static_cast<std::size_t>(from - shown.begin()), static_cast<std::size_t>(to - from)};
}

}  // namespace

std::size_t HtmlPlaces::freeFrom(std::size_t row, std::size_t column) const {
    const std::size_t width = shown_.columns.size();
    while (column < width && isTaken_[row * width + column]) ++column;
    return column;
}

HtmlPlaces::Span HtmlPlaces::take(const model::CellBlock& cells) {
    const auto [firstColumn, columns] =
        shownFrom(shown_.columns, cells.firstColumn, cells.lastColumn);
    const auto [firstRow, rows] = shownFrom(shown_.rows, cells.firstRow, cells.lastRow);
    for (std::size_t row = firstRow; row < firstRow + rows; ++row) {
        const auto begin = isTaken_.begin() +
                           static_cast<std::ptrdiff_t>(row * shown_.columns.size() + firstColumn);
        std::fill_n(begin, columns, true);
    }
    return {firstColumn, columns, firstRow, rows};
}

bool HtmlPlaces::fills(const HtmlRow& html, std::size_t row) const {
    const std::size_t width = shown_.columns.size();
    std::size_t column = freeFrom(row, 0);
    for (const HtmlCell& cell : html.cells) {
        if (column == width) return true;
        const std::int32_t first = shown_.columns[column];
        const auto [place, count] = shownFrom(shown_.columns, first, first + cell.look.columns - 1);
        column = freeFrom(row, place + count);
    }
    return column == width;
}

std::vector<model::CellBlock> HtmlPlaces::leftOutOf(const HtmlRow& html, std::size_t row,
                                                    const SheetRecord& sheet) const {
    std::vector<model::CellBlock> found;
    if (fills(html, row)) return found;
    std::size_t column = freeFrom(row, 0);
    while (column < shown_.columns.size()) {
        const auto cell = model::CellBlock::cell(shown_.rows[row], shown_.columns[column]);
        const model::CellBlock whole = blockOf(sheet.wholeCells(cell));
        if (whole.firstRow != cell.firstRow || whole.firstColumn != cell.firstColumn)
            found.push_back(whole);
        const auto [place, count] = shownFrom(shown_.columns, whole.firstColumn, whole.lastColumn);
        column = freeFrom(row, place + count);
    }
    return found;
}

}  // namespace libreoffice::excel

#include "office/libreoffice/excel/html_places.h"

#include <algorithm>

namespace libreoffice::excel {

std::size_t HtmlPlaces::freeFrom(std::size_t row, std::size_t column) const {
    const std::size_t width = shown_.columns.size();
    while (column < width && isTaken_[row * width + column]) ++column;
    return column;
}

HtmlPlaces::Span HtmlPlaces::take(const model::CellBlock& cells) {
    const auto [left, right] = shownBetween(shown_.columns, cells.firstColumn, cells.lastColumn);
    const auto [top, bottom] = shownBetween(shown_.rows, cells.firstRow, cells.lastRow);
    for (std::size_t row = top; row < bottom; ++row) {
        const auto begin =
            isTaken_.begin() + static_cast<std::ptrdiff_t>(row * shown_.columns.size() + left);
        std::fill_n(begin, right - left, true);
    }
    return {left, right - left, top, bottom - top};
}

bool HtmlPlaces::fills(const HtmlRow& html, std::size_t row) const {
    const std::size_t width = shown_.columns.size();
    std::size_t column = freeFrom(row, 0);
    for (const HtmlCell& cell : html.cells) {
        if (column == width) return true;
        const std::int32_t first = shown_.columns[column];
        const auto last = first + cell.look.columns - 1;
        column = freeFrom(row, shownBetween(shown_.columns, first, last).end);
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
        const auto covered = shownBetween(shown_.columns, whole.firstColumn, whole.lastColumn);
        column = freeFrom(row, covered.end);
    }
    return found;
}

}  // namespace libreoffice::excel

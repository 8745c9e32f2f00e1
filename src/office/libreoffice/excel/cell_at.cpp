#include "office/libreoffice/excel/cell_at.h"

#include <algorithm>

namespace libreoffice::excel {

namespace {

/// Searches columns and rows at once, since a cell tells both edges in one call.
struct Search {
    std::int32_t low = 0;
    std::int32_t high;
    std::int32_t step = 8;
    bool bounded = false;

    explicit Search(std::int32_t last) : high(last) {}

    [[nodiscard]] bool isDone() const { return low >= high; }
    /// Far out in growing steps first: what is looked for is near the corner of the sheet nearly
    /// always.
    [[nodiscard]] std::int32_t next() const {
        if (isDone()) return low;
        return bounded ? low + (high - low + 1) / 2 : std::min(low + step, high);
    }
    void learn(std::int32_t place, bool beginsBeforePoint) {
        if (isDone()) return;
        if (beginsBeforePoint) {
            low = place;
            step *= 2;
        } else {
            high = place - 1;
            bounded = true;
        }
    }
};

}  // namespace

CellBlock cellAt(const SheetRecord& sheet, const css::awt::Point& point) {
    Search column(CellBlock::lastColumnOfSheet);
    Search row(CellBlock::lastRowOfSheet);
    while (!column.isDone() || !row.isDone()) {
        const std::int32_t atColumn = column.next();
        const std::int32_t atRow = row.next();
        const auto cell = sheet.sheet()->getCellByPosition(atColumn, atRow);
        const auto corner = property<css::awt::Point>(cell, "Position");
        column.learn(atColumn, corner.X <= point.X);
        row.learn(atRow, corner.Y <= point.Y);
    }
    return CellBlock::cell(row.low, column.low);
}

}  // namespace libreoffice::excel

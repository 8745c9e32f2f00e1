#include "office/libreoffice/excel/table_lines.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <utility>

namespace libreoffice::excel {

using office::CellLook;
using office::TableLook;

namespace {

/// Adds up the lengths of those that become one line with the last one before that is kept.
std::vector<double> joined(const std::vector<double>& lengths, const std::set<std::size_t>& kept) {
    std::vector<double> all;
    for (std::size_t i = 0; i < lengths.size(); ++i) {
        if (kept.contains(i)) all.push_back(0);
        all.back() += lengths[i];
    }
    return all;
}

/// How many of a stretch are kept.
std::int32_t keptFrom(const std::set<std::size_t>& kept, std::size_t first, std::int32_t count) {
    const auto end = first + static_cast<std::size_t>(count);
    return static_cast<std::int32_t>(std::distance(kept.lower_bound(first), kept.lower_bound(end)));
}

}  // namespace

void mirror(TableLook& table, std::vector<CellValue>& values) {
    const std::size_t width = table.columnWidthsPt.size();
    const auto mirrorRows = [&](auto& all) {
        for (auto row = all.begin(); row != all.end(); row += static_cast<std::ptrdiff_t>(width))
            std::reverse(row, row + static_cast<std::ptrdiff_t>(width));
    };
    std::reverse(table.columnWidthsPt.begin(), table.columnWidthsPt.end());
    mirrorRows(table.cells);
    mirrorRows(values);
    for (std::size_t i = 0; i < table.cells.size(); ++i) {
        CellLook& look = table.cells[i];
        std::swap(look.left, look.right);
        std::swap(look.falling, look.rising);
        if (look.isCovered || look.columns == 1) continue;
        const std::size_t first = i + 1 - static_cast<std::size_t>(look.columns);
        std::swap(look, table.cells[first]);
        std::swap(values[i], values[first]);
    }
}

TableLook withoutUnseenLines(const TableLook& table) {
    const std::size_t columns = table.columnWidthsPt.size();
    std::set<std::size_t> keptColumns, keptRows;
    for (std::size_t i = 0; i < table.cells.size(); ++i) {
        if (table.cells[i].isCovered) continue;
        keptRows.insert(i / columns);
        keptColumns.insert(i % columns);
    }
    TableLook seen = {joined(table.columnWidthsPt, keptColumns),
                      joined(table.rowHeightsPt, keptRows),
                      {},
                      table.leftPt,
                      table.topPt};
    for (const std::size_t row : keptRows) {
        for (const std::size_t column : keptColumns) {
            seen.cells.push_back(table.at(row, column));
            CellLook& look = seen.cells.back();
            look.columns = keptFrom(keptColumns, column, look.columns);
            look.rows = keptFrom(keptRows, row, look.rows);
        }
    }
    return seen;
}

}  // namespace libreoffice::excel

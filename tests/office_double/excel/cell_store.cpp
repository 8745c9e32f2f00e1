#include "office_double/excel/cell_store.h"

#include <algorithm>

namespace office_double {

using excel::CellBlock;
using office::Table;
using office::Value;

namespace {

bool covers(const CellBlock& block, std::int32_t row, std::int32_t column) {
    return excel::intersection(block, CellBlock::cell(row, column)).has_value();
}

}  // namespace

Table CellStore::read(const CellBlock& block) const {
    Table table(static_cast<std::size_t>(block.rows()), static_cast<std::size_t>(block.columns()));
    for (auto cell = cells_.lower_bound({block.firstRow, block.firstColumn});
         cell != cells_.end() && cell->first.first <= block.lastRow; ++cell) {
        const auto& [place, value] = *cell;
        if (covers(block, place.first, place.second))
            table.at(static_cast<std::size_t>(place.first - block.firstRow) + 1,
                     static_cast<std::size_t>(place.second - block.firstColumn) + 1) = value;
    }
    return table;
}

void CellStore::enter(std::int32_t row, std::int32_t column, const Table& values) {
    for (std::size_t i = 0; i < values.rows(); ++i) {
        for (std::size_t j = 0; j < values.columns(); ++j) {
            const std::pair place(row + static_cast<std::int32_t>(i),
                                  column + static_cast<std::int32_t>(j));
            const Value typed =
                excel::typedIn(values.at(i + 1, j + 1), format(place.first, place.second) == "@");
            if (typed.isEmpty()) {
                cells_.erase(place);
            } else {
                cells_[place] = typed;
            }
        }
    }
}

void CellStore::clear(const CellBlock& block) {
    std::erase_if(cells_, [&](const auto& entry) {
        return covers(block, entry.first.first, entry.first.second);
    });
}

std::string CellStore::format(std::int32_t row, std::int32_t column) const {
    for (auto entry = formats_.rbegin(); entry != formats_.rend(); ++entry) {
        if (covers(entry->first, row, column)) return entry->second;
    }
    return "General";
}

void CellStore::setFormat(const CellBlock& block, std::string format) {
    formats_.emplace_back(block, std::move(format));
}

CellBlock CellStore::used() const {
    CellBlock block;
    for (const auto& [place, value] : cells_) {
        block.lastRow = std::max(block.lastRow, place.first);
        block.lastColumn = std::max(block.lastColumn, place.second);
    }
    return block;
}

}  // namespace office_double

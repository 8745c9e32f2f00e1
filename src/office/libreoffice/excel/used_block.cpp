#include "office/libreoffice/excel/used_block.h"

#include <com/sun/star/sheet/CellFlags.hpp>
#include <com/sun/star/sheet/XCellRangesQuery.hpp>
#include <com/sun/star/sheet/XSheetCellCursor.hpp>
#include <com/sun/star/sheet/XSheetCellRange.hpp>
#include <com/sun/star/sheet/XSheetCellRanges.hpp>
#include <com/sun/star/sheet/XUsedAreaCursor.hpp>

#include <algorithm>
#include <utility>
#include <vector>

namespace libreoffice::excel {

namespace {

CellBlock blockAt(const uno::Reference<uno::XInterface>& range) {
    const auto address = as<css::sheet::XCellRangeAddressable>(range)->getRangeAddress();
    return {address.StartColumn, address.StartRow, address.EndColumn, address.EndRow};
}

/// First and last place of cells that are filled, along one row or column.
using Stretches = std::vector<std::pair<std::int32_t, std::int32_t>>;

Stretches filledAlong(const SheetPtr& sheet, const CellBlock& line, bool isColumn) {
    using namespace css::sheet;
    const auto filled = as<XCellRangesQuery>(sheet->cells(line))
                            ->queryContentCells(CellFlags::VALUE | CellFlags::DATETIME |
                                                CellFlags::STRING | CellFlags::FORMULA)
                            ->getRangeAddresses();
    Stretches found;
    for (const css::table::CellRangeAddress& part : filled) {
        found.emplace_back(isColumn ? part.StartRow : part.StartColumn,
                           isColumn ? part.EndRow : part.EndColumn);
    }
    std::sort(found.begin(), found.end());
    Stretches joined;
    for (const auto& stretch : found) {
        if (!joined.empty() && joined.back().second + 1 >= stretch.first) {
            joined.back().second = std::max(joined.back().second, stretch.second);
        } else {
            joined.push_back(stretch);
        }
    }
    return joined;
}

std::int32_t endBackwards(const Stretches& filled, std::int32_t from) {
    std::int32_t end = 0;
    for (const auto& [first, last] : filled) {
        if (first < from && from <= last) return first;
        if (last < from) end = last;
    }
    return end;
}

std::int32_t endForwards(const Stretches& filled, std::int32_t from, std::int32_t edge) {
    for (const auto& [first, last] : filled) {
        if (first <= from && from < last) return last;
        if (first > from) return first;
    }
    return edge;
}

}  // namespace

CellBlock usedBlock(const SheetPtr& sheet) {
    const auto cursor = sheet->sheet()->createCursor();
    const auto used = as<css::sheet::XUsedAreaCursor>(cursor);
    used->gotoStartOfUsedArea(false);
    used->gotoEndOfUsedArea(true);
    return blockAt(cursor);
}

CellBlock regionAround(const SheetPtr& sheet, const CellBlock& block) {
    const auto range = as<css::sheet::XSheetCellRange>(sheet->cells(block));
    const auto cursor = sheet->sheet()->createCursorByRange(range);
    cursor->collapseToCurrentRegion();
    const CellBlock region = blockAt(cursor);
    // For a cell with nothing around it LibreOffice gives some block that the cell is not in.
    return around(region, block) == region ? region : block;
}

CellBlock endOf(const SheetPtr& sheet, const CellBlock& cell, Direction direction) {
    const bool isColumn = direction == Direction::Up || direction == Direction::Down;
    const std::int32_t row = cell.firstRow;
    const std::int32_t column = cell.firstColumn;
    const CellBlock line = isColumn ? CellBlock{column, 0, column, CellBlock::lastRowOfSheet}
                                    : CellBlock{0, row, CellBlock::lastColumnOfSheet, row};
    const Stretches filled = filledAlong(sheet, line, isColumn);
    const std::int32_t from = isColumn ? row : column;
    const std::int32_t edge = isColumn ? CellBlock::lastRowOfSheet : CellBlock::lastColumnOfSheet;
    const bool isBackwards = direction == Direction::Up || direction == Direction::ToLeft;
    const std::int32_t end =
        isBackwards ? endBackwards(filled, from) : endForwards(filled, from, edge);
    return isColumn ? CellBlock::cell(end, column) : CellBlock::cell(row, end);
}

}  // namespace libreoffice::excel

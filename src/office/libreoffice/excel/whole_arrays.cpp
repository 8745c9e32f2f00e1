#include "office/libreoffice/excel/whole_arrays.h"

#include <com/sun/star/sheet/XCellRangeFormula.hpp>
#include <com/sun/star/sheet/XCellRangesQuery.hpp>
#include <com/sun/star/sheet/XSheetCellCursor.hpp>
#include <com/sun/star/sheet/XSheetCellRange.hpp>
#include <com/sun/star/sheet/XSheetCellRanges.hpp>
#include <com/sun/star/table/XColumnRowRange.hpp>

#include <optional>

#include "office/libreoffice/at_end.h"
#include "office/libreoffice/excel/answered.h"
#include "office/libreoffice/excel/unrecorded.h"

namespace libreoffice::excel {

namespace {

model::CellBlock arrayAt(const SheetRecord& sheet, std::int32_t row, std::int32_t column) {
    const auto cell = sheet.range(model::CellBlock::cell(row, column));
    const auto cursor =
        answered(sheet.sheet()->createCursorByRange(as<css::sheet::XSheetCellRange>(cell)));
    cursor->collapseToCurrentArray();
    return blockOf(uno::Reference<css::table::XCellRange>(cursor.get()));
}

/// The block around a row or a column of cells and the arrays that these belong to.
model::CellBlock aroundArraysOf(const SheetRecord& sheet, const model::CellBlock& line) {
    model::CellBlock all = line;
    const auto formulas = as<css::sheet::XCellRangeFormula>(sheet.range(line))->getFormulaArray();
    std::optional<model::CellBlock> last;
    for (std::int32_t row = 0; row < formulas.getLength(); ++row) {
        for (std::int32_t column = 0; column < formulas[row].getLength(); ++column) {
            if (!formulas[row][column].startsWith("{=")) continue;
            const auto cell =
                model::CellBlock::cell(line.firstRow + row, line.firstColumn + column);
            if (last && intersection(*last, cell)) continue;
            last = arrayAt(sheet, cell.firstRow, cell.firstColumn);
            all = around(all, *last);
        }
    }
    return all;
}

}  // namespace

model::CellBlock withWholeArrays(const SheetRecord& sheet, const model::CellBlock& block) {
    model::CellBlock whole = block;
    for (model::CellBlock before = {-1, -1, -1, -1}; before != whole;) {
        before = whole;
        const auto& [left, top, right, bottom] = before;
        for (const model::CellBlock& edge : {model::CellBlock{left, top, right, top},
                                             {left, bottom, right, bottom},
                                             {left, top, left, bottom},
                                             {right, top, right, bottom}})
            whole = around(whole, aroundArraysOf(sheet, edge));
    }
    return whole;
}

HiddenAround::HiddenAround(SheetRecord& sheet, const model::CellBlock& inner,
                           const model::CellBlock& outer)
    : HiddenAround(sheet) {
    // From here on the destructor undoes what was done, also when this fails.
    const auto& [left, top, right, bottom] = inner;
    if (outer.firstColumn < left) hide({outer.firstColumn, top, left - 1, bottom}, true);
    if (right < outer.lastColumn) hide({right + 1, top, outer.lastColumn, bottom}, true);
    if (outer.firstRow < top) hide({left, outer.firstRow, right, top - 1}, false);
    if (bottom < outer.lastRow) hide({left, bottom + 1, right, outer.lastRow}, false);
}

HiddenAround::~HiddenAround() {
    asFarAsPossible([&] {
        const Unrecorded quiet(sheet_.book());
        for (const auto& lines : hidden_) setProperty(lines, "IsVisible", true);
    });
}

void HiddenAround::hide(const model::CellBlock& strip, bool asColumns) {
    const auto shown =
        answered(as<css::sheet::XCellRangesQuery>(sheet_.range(strip))->queryVisibleCells());
    const auto parts = shown->getRangeAddresses();
    const Unrecorded quiet(sheet_.book());
    for (const css::table::CellRangeAddress& part : parts) {
        const auto lines = as<css::table::XColumnRowRange>(sheet_.range(blockOf(part)));
        if (asColumns) {
            hidden_.emplace_back(lines->getColumns());
        } else {
            hidden_.emplace_back(lines->getRows());
        }
        setProperty(hidden_.back(), "IsVisible", false);
        // What it doesn't do it says nothing of.
        isHidden_ = isHidden_ && !property<bool>(hidden_.back(), "IsVisible", true);
    }
}

}  // namespace libreoffice::excel

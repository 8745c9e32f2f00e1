#include <com/sun/star/sheet/CellFlags.hpp>
#include <com/sun/star/sheet/XCellRangeFormula.hpp>
#include <com/sun/star/sheet/XSheetOperation.hpp>
#include <com/sun/star/text/XTextRange.hpp>
#include <com/sun/star/util/XProtectable.hpp>
#include <fmt/format.h>

#include "office/libreoffice/excel/cell_values.h"
#include "office/libreoffice/excel/formulas.h"
#include "office/libreoffice/excel/range.h"

/// What is in the cells of a range.
namespace libreoffice::excel {

namespace {

/// More than fits in memory comfortably; nobody reads a sheet of 17 thousand million cells.
constexpr double mostCells = 5e6;

constexpr sal_Int32 contents = css::sheet::CellFlags::VALUE | css::sheet::CellFlags::DATETIME |
                               css::sheet::CellFlags::STRING | css::sheet::CellFlags::FORMULA;

void requireUnprotected(SheetRecord& sheet, const std::string& source) {
    if (!as<css::util::XProtectable>(sheet.sheet())->isProtected()) return;
    throw Failure(FailureNumber::ApplicationDefined, source, "The sheet is protected");
}

}  // namespace

void Range::requireReadable(const CellBlock& block) const {
    if (block.cells() <= mostCells) return;
    throw Failure(FailureNumber::ApplicationDefined, "Range.Value",
                  fmt::format("{} is too large to be moved as a block", addressOf(block)));
}

Value Range::value() {
    requireReadable(first());
    return readCells(book().formats(), cells(), first());
}

void Range::setValue(const Value& value) {
    requireSheet("Range.Value");
    requireUnprotected(sheet(), "Range.Value");
    for (const CellBlock& block : blocks_) {
        requireReadable(block);
        writeCells(book().formats(), block == first() ? cells() : sheet().cells(block), block,
                   value);
    }
}

Value Range::formula() {
    requireReadable(first());
    const auto rows = as<css::sheet::XCellRangeFormula>(cells())->getFormulaArray();
    const auto sheetPlace = static_cast<sal_Int16>(sheet().place());
    office::Table table(static_cast<std::size_t>(first().rows()),
                        static_cast<std::size_t>(first().columns()));
    for (std::size_t row = 1; row <= table.rows(); ++row) {
        for (std::size_t column = 1; column <= table.columns(); ++column) {
            const auto below = static_cast<sal_Int32>(row - 1);
            const auto right = static_cast<sal_Int32>(column - 1);
            const css::table::CellAddress cell(sheetPlace, first().firstColumn + right,
                                               first().firstRow + below);
            table.at(row, column) = formulaOfCell(book(), fromUno(rows[below][right]), cell);
        }
    }
    if (first().cells() == 1) return table.at(1, 1);
    return table;
}

Value Range::text() {
    return fromUno(as<css::text::XTextRange>(cells()->getCellByPosition(0, 0))->getString());
}

Value Range::numberFormat() {
    return book().formats().codeOf(property<sal_Int32>(cells(), "NumberFormat"));
}

void Range::setNumberFormat(const Value& code) {
    requireSheet("Range.NumberFormat");
    requireUnprotected(sheet(), "Range.NumberFormat");
    const sal_Int32 key = book().formats().keyFor(code.toText());
    for (const CellBlock& block : blocks_) setProperty(sheet().cells(block), "NumberFormat", key);
}

Value Range::clearContents(const CallArguments& arguments) {
    requireSheet(arguments.source());
    requireUnprotected(sheet(), arguments.source());
    for (const CellBlock& block : blocks_)
        as<css::sheet::XSheetOperation>(sheet().cells(block))->clearContents(contents);
    return true;
}

}  // namespace libreoffice::excel

#include "office/libreoffice/excel/range.h"

#include <limits>
#include <utility>

#include "office/libreoffice/excel/areas.h"
#include "office/libreoffice/excel/used_block.h"

namespace libreoffice::excel {

const office::MemberTable<Range>& Range::members() {
    static const auto table =
        office::MemberTable<Range>("Range")
            .property("Address", &Range::address)
            .property("Count", &Range::count)
            .property("Areas", &Range::areas)
            .property("Worksheet", &Range::worksheet)
            .property("Parent", &Range::worksheet)
            .property("Row", [](Range& self,
                                const CallArguments&) { return Value(self.first().firstRow + 1); })
            .property("Column",
                      [](Range& self, const CallArguments&) {
                          return Value(self.first().firstColumn + 1);
                      })
            .property("Rows", &Range::rows)
            .property("Columns", &Range::columns)
            .property("EntireRow", &Range::entireRow)
            .property("EntireColumn", &Range::entireColumn)
            .property("Cells", {"RowIndex", "ColumnIndex"}, &Range::item)
            .property("Item", {"RowIndex", "ColumnIndex"}, &Range::item)
            .property("Offset", {"RowOffset", "ColumnOffset"}, &Range::offset)
            .property("CurrentRegion", &Range::currentRegion)
            .property("End", {"Direction"}, &Range::end)
            .property("Value", &Range::value, &Range::setValue)
            .property("Value2", &Range::value, &Range::setValue)
            .property("Formula", &Range::formula)
            .property("Text", &Range::text)
            .property("NumberFormat", &Range::numberFormat, &Range::setNumberFormat)
            .property("Width", &Range::width)
            .property("Height", &Range::height)
            .property("Left", &Range::left)
            .property("Top", &Range::top)
            .property("Hidden", &Range::isHidden, &Range::setHidden)
            .method("ClearContents", {}, &Range::clearContents)
            .method("Select", {}, &Range::select)
            .method("Copy", {}, &Range::copyPicture)
            .method("CopyPicture", {"Appearance", "Format"}, &Range::copyPicture);
    return table;
}

Range::Range(DeskPtr desk, BookPtr book, SheetPtr sheet, CellBlocks blocks, RangeUnit unit)
    : SheetObject(std::move(desk), std::move(book), std::move(sheet)),
      blocks_(std::move(blocks)),
      unit_(unit) {}

const uno::Reference<css::table::XCellRange>& Range::cells() {
    if (!cells_.is()) cells_ = sheet().cells(first());
    return cells_;
}

Value Range::other(CellBlocks blocks, RangeUnit unit) const {
    return rangeObject(deskPtr(), bookPtr(), sheetPtr(), std::move(blocks), unit);
}

Value Range::address() {
    return addressOf(blocks_);
}

Value Range::count() {
    if (unit_ == RangeUnit::Rows) return first().rows();
    if (unit_ == RangeUnit::Columns) return first().columns();
    double all = 0;
    for (const CellBlock& block : blocks_) all += block.cells();
    if (all > std::numeric_limits<std::int32_t>::max()) return all;
    return static_cast<std::int32_t>(all);
}

Value Range::areas() {
    return makeObject<Areas>(deskPtr(), bookPtr(), sheetPtr(), blocks_);
}

Value Range::worksheet() {
    return sheetObject(deskPtr(), bookPtr(), sheetPtr());
}

Value Range::rows() {
    return other(blocks_, RangeUnit::Rows);
}

Value Range::columns() {
    return other(blocks_, RangeUnit::Columns);
}

Value Range::entireRow() {
    CellBlocks whole;
    for (const CellBlock& block : blocks_) {
        whole.push_back({0, block.firstRow, CellBlock::lastColumnOfSheet, block.lastRow});
    }
    return other(std::move(whole), RangeUnit::Rows);
}

Value Range::entireColumn() {
    CellBlocks whole;
    for (const CellBlock& block : blocks_) {
        whole.push_back({block.firstColumn, 0, block.lastColumn, CellBlock::lastRowOfSheet});
    }
    return other(std::move(whole), RangeUnit::Columns);
}

CellBlock Range::itemBlock(const CallArguments& arguments) const {
    const std::int32_t index = arguments.at(0).toLong() - 1;
    const std::int32_t row = first().firstRow + index;
    if (unit_ == RangeUnit::Rows) return {first().firstColumn, row, first().lastColumn, row};
    if (unit_ == RangeUnit::Columns) {
        const std::int32_t column = first().firstColumn + index;
        return {column, first().firstRow, column, first().lastRow};
    }
    if (!arguments.has(1)) {
        return CellBlock::cell(first().firstRow + index / first().columns(),
                               first().firstColumn + index % first().columns());
    }
    const Value& which = arguments.at(1);
    const std::int32_t place =
        which.isText() ? columnOf(which.toText()).value_or(-1) : which.toLong() - 1;
    return CellBlock::cell(row, first().firstColumn + place);
}

Value Range::item(const CallArguments& arguments) {
    if (!arguments.has(0)) return other(blocks_);
    const CellBlock block = itemBlock(arguments);
    if (!block.isOnSheet()) {
        throw Failure(FailureNumber::ApplicationDefined, arguments.source(),
                      "There is no such cell");
    }
    return other({block}, unit_);
}

Value Range::offset(const CallArguments& arguments) {
    const std::int32_t rows = arguments.at(0, 0).toLong();
    const std::int32_t columns = arguments.at(1, 0).toLong();
    CellBlocks moved;
    for (const CellBlock& block : blocks_) {
        moved.push_back({block.firstColumn + columns, block.firstRow + rows,
                         block.lastColumn + columns, block.lastRow + rows});
        if (!moved.back().isOnSheet()) {
            throw Failure(FailureNumber::ApplicationDefined, arguments.source(),
                          "This is off the sheet");
        }
    }
    return other(std::move(moved), unit_);
}

Value Range::currentRegion() {
    return other({regionAround(sheetPtr(), first())});
}

Value Range::end(const CallArguments& arguments) {
    const std::int32_t direction = arguments.at(0).toLong();
    for (const Direction known :
         {Direction::Up, Direction::Down, Direction::ToLeft, Direction::ToRight}) {
        if (static_cast<std::int32_t>(known) == direction)
            return other({endOf(sheetPtr(), first(), known)});
    }
    throw Failure(FailureNumber::InvalidProcedureCall, arguments.source(),
                  "There is no such direction");
}

const Range& rangeOf(const Value& value, const std::string& source) {
    if (value.isObject()) {
        if (const auto range = std::dynamic_pointer_cast<Range>(value.toObject().target()))
            return *range;
    }
    throw Failure(FailureNumber::TypeMismatch, source, "Type mismatch: a range is needed");
}

}  // namespace libreoffice::excel

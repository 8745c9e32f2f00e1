#include <fmt/format.h>

#include <limits>
#include <utility>

#include "office/model/excel/objects.h"

namespace office::model::excel {

namespace {

/// More than fits in memory comfortably; nobody reads a sheet of 17 thousand million cells.
constexpr double mostCells = 5e6;

constexpr std::int32_t directionUp = -4162;

/// The blocks of a range, one by one.
class Areas : public ObjectIn<Areas, InSheet> {
public:
    Areas(InSheet home, CellBlocks blocks)
        : ObjectIn(std::move(home)),
          blocks_(std::move(blocks)) {}

    static const MemberTable<Areas>& members() {
        static const auto table =
            MemberTable<Areas>("Areas")
                .property("Count", [](Areas& self) { return countOf(self.blocks_.size()); })
                .property("Item", {"Index"}, [](Areas& self, const CallArguments& arguments) {
                    const ItemIndex index(arguments.at(0).toLong(), arguments.source());
                    return rangeObject(self.home(),
                                       {self.blocks_[index.placeBelow(self.blocks_.size())]});
                });
        return table;
    }

private:
    CellBlocks blocks_;
};

/// Cells of one sheet: one block or several. Asked about cells, it speaks of its first block, as
/// Excel's does.
class Range : public ObjectIn<Range, InSheet> {
public:
    Range(InSheet home, CellBlocks blocks, RangeUnit unit)
        : ObjectIn(std::move(home)),
          blocks_(std::move(blocks)),
          unit_(unit) {}

    static const MemberTable<Range>& members();

    [[nodiscard]] const CellBlocks& blocks() const { return blocks_; }
    Object item(const CallArguments& arguments);

private:
    [[nodiscard]] const CellBlock& first() const { return blocks_.front(); }
    /// The cells of the first block; asked for once.
    [[nodiscard]] Cells& cells() {
        if (!cells_) cells_ = sheet().cells(first());
        return *cells_;
    }
    [[nodiscard]] Object other(CellBlocks blocks, RangeUnit unit = RangeUnit::Cells) const {
        return rangeObject(home(), std::move(blocks), unit);
    }
    [[nodiscard]] Object entire(RangeUnit unit) const;
    [[nodiscard]] CellBlock itemBlock(const CallArguments& arguments) const;
    [[nodiscard]] Lines lines() const {
        return unit_ == RangeUnit::Columns ? Lines::Columns : Lines::Rows;
    }
    template <class Change>
    void change(const std::string& source, Change change);

    Value count();
    Value value();
    void setValue(const Value& value);
    Object end(const CallArguments& arguments);
    void setHidden(const Value& hidden);
    void select(const CallArguments& arguments);
    void copyAs(CopySource::Kind kind, const std::string& source);

    CellBlocks blocks_;
    RangeUnit unit_;
    CellsPtr cells_;
};

const MemberTable<Range>& Range::members() {
    using Self = Range;
    static const auto table =
        MemberTable<Self>("Range")
            .property("Address", [](Self& self) { return addressOf(self.blocks_); })
            .property("Count", &Self::count)
            .property("Areas",
                      [](Self& self) { return makeObject<Areas>(self.home(), self.blocks_); })
            .property("Worksheet",
                      [](Self& self) { return sheetObject(self.home(), self.home().sheet); })
            .property("Parent",
                      [](Self& self) { return sheetObject(self.home(), self.home().sheet); })
            .property("Row", [](Self& self) { return self.first().firstRow + 1; })
            .property("Rows", [](Self& self) { return self.other(self.blocks_, RangeUnit::Rows); })
            .property("Columns",
                      [](Self& self) { return self.other(self.blocks_, RangeUnit::Columns); })
            .property("EntireRow", [](Self& self) { return self.entire(RangeUnit::Rows); })
            .property("EntireColumn", [](Self& self) { return self.entire(RangeUnit::Columns); })
            .property("Cells", {"RowIndex", "ColumnIndex"}, &Self::item)
            .property("End", {"Direction"}, &Self::end)
            .property("Value", &Self::value, &Self::setValue)
            .property(
                "NumberFormat", [](Self& self) { return self.cells().numberFormat(); },
                [](Self& self, const Value& code) {
                    self.change("Range.NumberFormat",
                                [&](Cells& cells) { cells.setNumberFormat(code.toText()); });
                })
            .property("Left", [](Self& self) { return self.cells().place().left; })
            .property("Top", [](Self& self) { return self.cells().place().top; })
            .property("Width", [](Self& self) { return self.cells().place().width; })
            .property("Height", [](Self& self) { return self.cells().place().height; })
            .property(
                "Hidden", [](Self& self) { return self.cells().areHidden(self.lines()); },
                &Self::setHidden)
            .method("ClearContents", {},
                    [](Self& self, const CallArguments& arguments) {
                        self.change(arguments.source(), [](Cells& cells) { cells.clear(); });
                    })
            .method("Select", {}, &Self::select)
            .method("Copy", {},
                    [](Self& self, const CallArguments& arguments) {
                        self.copyAs(CopySource::Kind::Cells, arguments.source());
                    })
            .method("CopyPicture", {"Appearance", "Format"},
                    [](Self& self, const CallArguments& arguments) {
                        self.copyAs(CopySource::Kind::Picture, arguments.source());
                    });
    return table;
}

Value Range::count() {
    if (unit_ == RangeUnit::Rows) return first().rows();
    if (unit_ == RangeUnit::Columns) return first().columns();
    double all = 0;
    for (const CellBlock& block : blocks_) all += block.cells();
    if (all > std::numeric_limits<std::int32_t>::max()) return all;
    return static_cast<std::int32_t>(all);
}

Object Range::entire(RangeUnit unit) const {
    CellBlocks whole;
    for (const CellBlock& block : blocks_) {
        whole.push_back(
            unit == RangeUnit::Rows
                ? CellBlock{0, block.firstRow, CellBlock::lastColumnOfSheet, block.lastRow}
                : CellBlock{block.firstColumn, 0, block.lastColumn, CellBlock::lastRowOfSheet});
    }
    return other(std::move(whole), unit);
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

Object Range::item(const CallArguments& arguments) {
    if (!arguments.has(0)) return other(blocks_);
    const CellBlock block = itemBlock(arguments);
    if (!block.isOnSheet()) refuse(arguments.source(), "There is no such cell");
    return other({block}, unit_);
}

void requireMovable(const CellBlock& block, const std::string& source) {
    if (block.cells() > mostCells)
        refuse(source, fmt::format("{} is too large to be moved as a block", addressOf(block)));
}

Value Range::value() {
    requireMovable(first(), "Range.Value");
    const Table table = cells().read();
    return first().cells() == 1 ? table.at(1, 1) : Value(table);
}

/// The part of a value that fits into a block: a table is cut, anything else goes into every cell.
Table tableFor(const Value& value, const CellBlock& block) {
    const auto rows = static_cast<std::size_t>(block.rows());
    const auto columns = static_cast<std::size_t>(block.columns());
    const Table given = value.toTable();
    Table table(value.isTable() ? std::min(rows, given.rows()) : rows,
                value.isTable() ? std::min(columns, given.columns()) : columns);
    for (std::size_t row = 1; row <= table.rows(); ++row) {
        for (std::size_t column = 1; column <= table.columns(); ++column)
            table.at(row, column) = value.isTable() ? given.at(row, column) : value;
    }
    return table;
}

/// Does something to the cells of each block, unless the sheet has gone or is protected.
template <class Change>
void Range::change(const std::string& source, Change change) {
    requireThere(home(), source);
    if (sheet().isProtected()) refuse(source, "The sheet is protected");
    change(cells());
    for (std::size_t i = 1; i < blocks_.size(); ++i) change(*sheet().cells(blocks_[i]));
}

void Range::setValue(const Value& value) {
    for (const CellBlock& block : blocks_) requireMovable(block, "Range.Value");
    std::size_t place = 0;
    change("Range.Value", [&](Cells& cells) {
        const Table table = tableFor(value, blocks_[place++]);
        if (table.rows() > 0 && table.columns() > 0) cells.write(table);
    });
}

/// Where a jump upwards ends: at the edge of the filled cells that the cell stands in, at the next
/// filled one, or at the edge of the sheet.
Object Range::end(const CallArguments& arguments) {
    if (arguments.at(0).toLong() != directionUp)
        throw Failure(FailureNumber::InvalidProcedureCall, arguments.source(),
                      "Only jumps upwards are known");
    const std::int32_t from = first().firstRow;
    const std::int32_t column = first().firstColumn;
    std::int32_t end = 0;
    for (const auto& [top, bottom] : sheet().cells({column, 0, column, from})->filledRows()) {
        if (top == from) continue;
        end = bottom == from ? top : bottom;
    }
    return other({CellBlock::cell(end, column)});
}

void Range::setHidden(const Value& hidden) {
    const bool isColumns = unit_ == RangeUnit::Columns && first().spansAllRows();
    if (!isColumns && !first().spansAllColumns())
        refuse("Range.Hidden", "Only entire rows and columns can be hidden");
    requireThere(home(), "Range.Hidden");
    for (const CellBlock& block : blocks_) sheet().cells(block)->hide(lines(), hidden.toBool());
}

void Range::select(const CallArguments& arguments) {
    requireThere(home(), arguments.source());
    if (book().activeSheet() != home().sheet)
        refuse(arguments.source(), "Only cells of the active sheet can be selected");
    sheet().select(blocks_);
}

void Range::copyAs(CopySource::Kind kind, const std::string& source) {
    if (blocks_.size() > 1) refuse(source, "This can't be done with several areas");
    const std::optional<CellBlock> block = drawnPart(first(), sheet());
    if (!block) refuse(source, "There is nothing in these rows or columns");
    CopySource from = sourceOf(home(), kind);
    // As it was named: what is bound to whole rows or columns follows them when more comes in.
    from.address = addressOf(first());
    const CellsPtr copied = *block == first() ? nullptr : sheet().cells(*block);
    books().clipboard().copied = (copied ? *copied : cells()).copy(std::move(from));
}

[[noreturn]] void noSuchRange(const std::string& source, const Value& wanted,
                              std::string_view where = "") {
    refuse(source, fmt::format("There is no range {}{}",
                               wanted.isText() ? "\"" + wanted.toText() + "\"" : "there", where));
}

/// An argument of `Range`: a range as it is, a text looked up.
RangePlace cellsOf(const InSheet& home, const Value& wanted, const std::string& source) {
    if (!wanted.isText()) return placeOfRange(wanted, source);
    auto found = findCells(home, wanted.toText());
    if (!found) noSuchRange(source, wanted);
    return *found;
}

/// What `Rows` and `Columns` take: a number, "B:D" or "1:5", or a single "B". Columns may be
/// counted too.
CellBlock linesOf(const Value& which, bool rows, const std::string& source) {
    if (which.isText()) {
        const std::string text = which.toText();
        auto block = blockOf(text.find(':') == std::string::npos ? text + ":" + text : text);
        if (!rows && block && block->spansAllColumns() &&
            block->lastRow <= CellBlock::lastColumnOfSheet)
            return {block->firstRow, 0, block->lastRow, CellBlock::lastRowOfSheet};
        if (block && (rows ? block->spansAllColumns() : block->spansAllRows())) return *block;
    } else {
        const std::int32_t place = which.toLong() - 1;
        const CellBlock block = rows ? CellBlock{0, place, CellBlock::lastColumnOfSheet, place}
                                     : CellBlock{place, 0, place, CellBlock::lastRowOfSheet};
        if (block.isOnSheet()) return block;
    }
    throw Failure(FailureNumber::TypeMismatch, source,
                  rows ? "These are no rows" : "These are no columns");
}

}  // namespace

Object rangeObject(const InSheet& home, CellBlocks blocks, RangeUnit unit) {
    return makeObject<Range>(home, std::move(blocks), unit);
}

Object rangeByArguments(const InSheet& home, const CallArguments& arguments, bool mayLeaveSheet) {
    RangePlace found = cellsOf(home, arguments.at(0), arguments.source());
    if (arguments.has(1)) {
        const RangePlace other = cellsOf(found.home, arguments.at(1), arguments.source());
        if (other.home.sheet != found.home.sheet) noSuchRange(arguments.source(), arguments.at(1));
        CellBlock all = found.blocks.front();
        for (const CellBlocks& blocks : {found.blocks, other.blocks}) {
            for (const CellBlock& block : blocks) all = around(all, block);
        }
        found.blocks = {all};
    }
    if (!mayLeaveSheet && found.home.sheet != home.sheet)
        noSuchRange(arguments.source(), arguments.at(0), " on this sheet");
    return rangeObject(found.home, std::move(found.blocks));
}

Object cellsByArguments(const InSheet& home, const CallArguments& arguments) {
    return Range(home, {CellBlock::wholeSheet()}, RangeUnit::Cells).item(arguments);
}

Object linesByArguments(const InSheet& home, const CallArguments& arguments, RangeUnit unit) {
    const CellBlock block =
        arguments.has(0) ? linesOf(arguments.at(0), unit == RangeUnit::Rows, arguments.source())
                         : CellBlock::wholeSheet();
    return rangeObject(home, {block}, unit);
}

RangePlace placeOfRange(const Value& range, const std::string& source) {
    const auto target = objectOf<Range>(range);
    if (!target)
        throw Failure(FailureNumber::TypeMismatch, source, "Type mismatch: a range is needed");
    return {target->home(), target->blocks()};
}

}  // namespace office::model::excel

#include <fmt/format.h>

#include <utility>

#include "office/model/excel/objects.h"

namespace office::model::excel {

namespace {

/// More than fits in memory comfortably; nobody reads a sheet of 17 thousand million cells.
constexpr double mostCells = 5e6;

/// The rows of a block, which are counted.
class Rows : public ObjectIn<Rows, InSheet> {
public:
    Rows(InSheet home, std::int32_t count) : ObjectIn(std::move(home)), count_(count) {}

    static const MemberTable<Rows>& members() {
        static const auto table =
            MemberTable<Rows>("Rows").property("Count", [](Rows& self) { return self.count_; });
        return table;
    }

private:
    std::int32_t count_;
};

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
    Range(InSheet home, CellBlocks blocks)
        : ObjectIn(std::move(home)),
          blocks_(std::move(blocks)) {}

    static const MemberTable<Range>& members();

    [[nodiscard]] const CellBlocks& blocks() const { return blocks_; }

private:
    [[nodiscard]] const CellBlock& first() const { return blocks_.front(); }
    /// The cells of the first block; asked for once.
    [[nodiscard]] Cells& cells() {
        if (!cells_) cells_ = sheet().cells(first());
        return *cells_;
    }
    template <class Change>
    void change(const std::string& source, Change change);

    Value value();
    void setValue(const Value& value);
    void select(const CallArguments& arguments);
    void copyAs(CopySource::Kind kind, const std::string& source);

    CellBlocks blocks_;
    CellsPtr cells_;
};

const MemberTable<Range>& Range::members() {
    using Self = Range;
    static const auto table =
        MemberTable<Self>("Range")
            .property("Address", [](Self& self) { return addressOf(self.blocks_); })
            .property("Areas",
                      [](Self& self) { return makeObject<Areas>(self.home(), self.blocks_); })
            .property("Worksheet",
                      [](Self& self) { return sheetObject(self.home(), self.home().sheet); })
            .property("Row", [](Self& self) { return self.first().firstRow + 1; })
            .property("Rows",
                      [](Self& self) { return makeObject<Rows>(self.home(), self.first().rows()); })
            .property("Value", &Self::value, &Self::setValue)
            .property(
                "NumberFormat", [](Self& self) { return self.cells().numberFormat(); },
                [](Self& self, const Value& code) {
                    self.change("Range.NumberFormat", [&](Cells& cells, const CellBlock&) {
                        cells.setNumberFormat(code.toText());
                    });
                })
            .property("Width", [](Self& self) { return self.cells().place().width; })
            .property("Height", [](Self& self) { return self.cells().place().height; })
            .method("ClearContents", {},
                    [](Self& self, const CallArguments& arguments) {
                        self.change(arguments.source(),
                                    [](Cells& cells, const CellBlock&) { cells.clear(); });
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
    change(cells(), first());
    for (std::size_t i = 1; i < blocks_.size(); ++i) change(*sheet().cells(blocks_[i]), blocks_[i]);
}

void Range::setValue(const Value& value) {
    for (const CellBlock& block : blocks_) requireMovable(block, "Range.Value");
    change("Range.Value", [&](Cells& cells, const CellBlock& block) {
        const Table table = tableFor(value, block);
        if (table.rows() > 0 && table.columns() > 0) cells.write(table);
    });
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

}  // namespace

Object rangeObject(const InSheet& home, CellBlocks blocks) {
    return makeObject<Range>(home, std::move(blocks));
}

Object rangeByArguments(const InSheet& home, const CallArguments& arguments) {
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
    if (found.home.sheet != home.sheet)
        noSuchRange(arguments.source(), arguments.at(0), " on this sheet");
    return rangeObject(found.home, std::move(found.blocks));
}

Object columnsByArguments(const InSheet& home, const CallArguments& arguments) {
    const auto block = blockOf(arguments.at(0).toText());
    if (!block || !block->spansAllRows())
        throw Failure(FailureNumber::TypeMismatch, arguments.source(), "These are no columns");
    return rangeObject(home, {*block});
}

RangePlace placeOfRange(const Value& range, const std::string& source) {
    const auto target = objectOf<Range>(range);
    if (!target)
        throw Failure(FailureNumber::TypeMismatch, source, "Type mismatch: a range is needed");
    return {target->home(), target->blocks()};
}

}  // namespace office::model::excel

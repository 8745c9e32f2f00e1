#pragma once

#include <com/sun/star/table/XCellRange.hpp>

#include <string>

#include "office/libreoffice/excel/book_object.h"
#include "office/libreoffice/excel/objects.h"

namespace libreoffice::excel {

/// Cells of one sheet: one block or several. Made from an address without a call; asked about
/// cells, it speaks of its first block, as Excel's does.
class Range : public SheetObject<Range> {
public:
    Range(DeskPtr desk, BookPtr book, SheetPtr sheet, CellBlocks blocks,
          RangeUnit unit = RangeUnit::Cells);

    static const office::MemberTable<Range>& members();

    [[nodiscard]] const CellBlocks& blocks() const { return blocks_; }

    Value address();
    Value count();
    Value areas();
    Value worksheet();
    Value rows();
    Value columns();
    Value entireRow();
    Value entireColumn();
    Value item(const CallArguments& arguments);
    Value offset(const CallArguments& arguments);
    Value currentRegion();
    Value end(const CallArguments& arguments);

    Value value();
    void setValue(const Value& value);
    Value formula();
    Value text();
    Value numberFormat();
    void setNumberFormat(const Value& code);
    Value clearContents(const CallArguments& arguments);

    Value width();
    Value height();
    Value left();
    Value top();
    Value isHidden();
    void setHidden(const Value& hidden);
    Value select(const CallArguments& arguments);
    Value copyPicture(const CallArguments& arguments);

private:
    [[nodiscard]] const CellBlock& first() const { return blocks_.front(); }
    /// The cells of the first block; fetched once.
    [[nodiscard]] const uno::Reference<css::table::XCellRange>& cells();
    [[nodiscard]] Value other(CellBlocks blocks, RangeUnit unit = RangeUnit::Cells) const;
    [[nodiscard]] CellBlock itemBlock(const CallArguments& arguments) const;
    /// A block that can be read or written at once. `Failure` 1004 if it has too many cells.
    void requireReadable(const CellBlock& block) const;

    CellBlocks blocks_;
    RangeUnit unit_;
    uno::Reference<css::table::XCellRange> cells_;
};

/// The range behind a value. `Failure` 13 if it is something else.
[[nodiscard]] const Range& rangeOf(const Value& value, const std::string& source);

}  // namespace libreoffice::excel

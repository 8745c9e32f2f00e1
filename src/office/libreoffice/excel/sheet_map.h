#pragma once

#include <com/sun/star/beans/XMultiPropertySet.hpp>
#include <com/sun/star/table/XCellCursor.hpp>

#include <cstdint>
#include <utility>
#include <vector>

#include "office/libreoffice/excel/sheet_record.h"

namespace libreoffice::excel {

/// The columns, or the rows, of a sheet as far as they have been met.
class KnownLines {
public:
    explicit KnownLines(SeenLine& seen) : seen_(seen) {}

    void learn(const SeenLine& line);
    /// Null if it has not been met.
    [[nodiscard]] const SeenLine* at(std::int32_t place) const;
    [[nodiscard]] const std::vector<SeenLine>& all() const { return lines_; }
    /// The line to count from, with a length that others may have, too.
    [[nodiscard]] SeenLine nearest(std::int32_t point) const;

private:
    std::vector<SeenLine> lines_;
    SeenLine& seen_;
};

/// The cells of a sheet and their places. One cell is asked for at a time, and tells of its column
/// and of its row.
class SheetMap : public model::CellMap {
public:
    explicit SheetMap(SheetRecordPtr sheet)
        : sheet_(std::move(sheet)),
          columns_(sheet_->seenColumn()),
          rows_(sheet_->seenRow()) {}

    model::CellBlock cellAt(double left, double top) override;
    model::Box placeOf(const model::CellBlock& block) override;

private:
    /// A cell that is moved to others.
    struct MovingCell {
        uno::Reference<css::table::XCellCursor> cursor;
        uno::Reference<css::beans::XMultiPropertySet> properties;
        std::int32_t row = 0;
        std::int32_t column = 0;
    };

    void lookAt(std::int32_t row, std::int32_t column);
    [[nodiscard]] PlaceOfCells placeOfCell(std::int32_t row, std::int32_t column);

    SheetRecordPtr sheet_;
    KnownLines columns_;
    KnownLines rows_;
    bool isReadFromRight_ = false;
    int looks_ = 0;
    MovingCell moving_;
};

}  // namespace libreoffice::excel

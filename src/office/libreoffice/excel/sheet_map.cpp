#include "office/libreoffice/excel/sheet_map.h"

#include <com/sun/star/sheet/XSheetCellCursor.hpp>

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "office/libreoffice/excel/answered.h"
#include "office/libreoffice/excel/calc_document.h"
#include "office/libreoffice/units.h"

namespace libreoffice::excel {

namespace {

/// Lines that are hidden have next to no length, which says nothing of others.
constexpr std::int32_t thinnestLine = 10;

/// Looks for the line at a point.
class Search {
public:
    Search(const KnownLines& known, std::int32_t point, std::int32_t last)
        : known_(known),
          point_(point),
          end_(last + 1) {}

    /// Takes into account what is known by now.
    [[nodiscard]] bool isDone() {
        for (; read_ < known_.all().size(); ++read_) narrow(known_.all()[read_]);
        // What lines were when they were met may not fit together.
        return end_ - found_ <= 1;
    }
    /// The line before the end, if the search is done.
    [[nodiscard]] std::int32_t found() const { return found_; }

    /// Most lines are as wide as their neighbours, so that the nearest one tells nearly always
    /// where to look.
    [[nodiscard]] std::int32_t next() {
        constexpr int guesses = 8;
        if (isDone()) return found_;
        const std::int32_t guess = ++tries_ > guesses ? found_ + (end_ - found_) / 2 : guessed();
        return std::clamp(guess, found_ + 1, end_ - 1);
    }

private:
    void narrow(const SeenLine& line) {
        if (line.start > point_) {
            end_ = std::min(end_, line.place);
            return;
        }
        found_ = std::max(found_, line.place);
        // The next line may begin one unit sooner: both are rounded.
        if (point_ < line.start + line.length - 1) end_ = std::min(end_, line.place + 1);
    }
    /// Charts often begin where a line does, and each line on the way may be half a unit longer
    /// than it says.
    [[nodiscard]] std::int32_t guessed() const {
        const SeenLine from = known_.nearest(point_);
        const double lines = static_cast<double>(point_ - from.start) / from.length;
        const double slack = 1 + std::abs(lines) / 2;
        return from.place + static_cast<std::int32_t>(std::floor(lines + slack / from.length));
    }

    const KnownLines& known_;
    std::size_t read_ = 0;
    std::int32_t point_;
    std::int32_t found_ = 0;
    std::int32_t end_;
    int tries_ = 0;
};

}  // namespace

void KnownLines::learn(const SeenLine& line) {
    if (at(line.place) == nullptr) lines_.push_back(line);
    seen_ = {line.place, line.start, line.length > thinnestLine ? line.length : seen_.length};
}

const SeenLine* KnownLines::at(std::int32_t place) const {
    const auto found = std::find_if(lines_.begin(), lines_.end(),
                                    [=](const SeenLine& line) { return line.place == place; });
    return found == lines_.end() ? nullptr : &*found;
}

SeenLine KnownLines::nearest(std::int32_t point) const {
    const auto distance = [=](const SeenLine& line) { return std::abs(line.start - point); };
    const auto found = std::min_element(lines_.begin(), lines_.end(),
                                        [&](const SeenLine& one, const SeenLine& other) {
                                            return distance(one) < distance(other);
                                        });
    if (found == lines_.end()) return seen_;
    return {found->place, found->start,
            found->length > thinnestLine ? found->length : seen_.length};
}

/// A cursor that is moved takes fewer calls than a range for each cell, once it is there.
PlaceOfCells SheetMap::placeOfCell(std::int32_t row, std::int32_t column) {
    constexpr int looksOfOneChart = 2;
    const CalcDocument& book = sheet_->book();
    // Moving the cursor of a closed workbook crashes LibreOffice, and users may close theirs any
    // time.
    if (++looks_ <= looksOfOneChart || !book.desk().opensHidden() || book.isGone())
        return libreoffice::excel::placeOf(sheet_->range(model::CellBlock::cell(row, column)));
    auto& [cursor, properties, atRow, atColumn] = moving_;
    if (!cursor.is()) {
        const auto first = answered(sheet_->sheet()->createCursor());
        first->collapseToSize(1, 1);
        properties = as<css::beans::XMultiPropertySet>(first);
        cursor = as<css::table::XCellCursor>(first);
    }
    cursor->gotoOffset(column - atColumn, row - atRow);
    atRow = row;
    atColumn = column;
    return libreoffice::excel::placeOf(properties);
}

void SheetMap::lookAt(std::int32_t row, std::int32_t column) {
    const auto [corner, size] = placeOfCell(row, column);
    // On a sheet that is read from right to left all places are negative: there a line ends where
    // it is said to lie.
    isReadFromRight_ = corner.X < 0;
    columns_.learn({column, isReadFromRight_ ? 1 - corner.X - size.Width : corner.X, size.Width});
    rows_.learn({row, corner.Y, size.Height});
}

model::CellBlock SheetMap::cellAt(double left, double top) {
    // Read from right to left, a point at the edge of two lines belongs to the first.
    const std::int32_t x = hundredthMmOf(left);
    Search column(columns_, x < 0 ? -x - 1 : x, model::CellBlock::lastColumnOfSheet);
    Search row(rows_, hundredthMmOf(top), model::CellBlock::lastRowOfSheet);
    while (!column.isDone() || !row.isDone()) {
        const std::int32_t atColumn = column.next();
        lookAt(row.next(), atColumn);
    }
    return model::CellBlock::cell(row.found(), column.found());
}

model::Box SheetMap::placeOf(const model::CellBlock& block) {
    const SeenLine* const left = columns_.at(block.firstColumn);
    const SeenLine* const right = columns_.at(block.lastColumn);
    const SeenLine* const top = rows_.at(block.firstRow);
    const SeenLine* const bottom = rows_.at(block.lastRow);
    if (left == nullptr || right == nullptr || top == nullptr || bottom == nullptr)
        return sheet_->cells(block)->place();
    const std::int32_t end = right->start + right->length;
    return {pointsOf(isReadFromRight_ ? 1 - end : left->start), pointsOf(top->start),
            pointsOf(end - left->start), pointsOf(bottom->start + bottom->length - top->start)};
}

}  // namespace libreoffice::excel

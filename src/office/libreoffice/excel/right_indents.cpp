#include "office/libreoffice/excel/right_indents.h"

#include <com/sun/star/beans/PropertyState.hpp>
#include <com/sun/star/beans/XPropertyState.hpp>
#include <com/sun/star/table/CellHoriJustify.hpp>

#include <cstdint>
#include <map>
#include <optional>
#include <utility>

#include "office/libreoffice/excel/cells_alike.h"

namespace libreoffice::excel {

namespace {

using office::drawing::IndentedCell;

constexpr char indentOfCells[] = "ParaIndent";

constexpr std::int64_t mostCellsAskedFor = 5000;

/// Where the columns and rows of a block are; each cell that is asked for tells of both.
class Edges {
public:
    Edges(const SheetRecord& sheet, const model::CellBlock& block)
        : sheet_(sheet),
          corner_(placeOf(sheet.range(block)).corner) {}

    [[nodiscard]] bool isReadFromRight() const { return corner_.X < 0; }

    /// Nothing for a cell that is hidden.
    [[nodiscard]] std::optional<IndentedCell> cellAt(std::int32_t column, std::int32_t row) {
        if (!columns_.contains(column) || !rows_.contains(row)) {
            const auto [corner, size] = placeOf(sheet_.range(model::CellBlock::cell(row, column)));
            columns_[column] = {corner.X - corner_.X, corner.X + size.Width - corner_.X};
            rows_[row] = {corner.Y - corner_.Y, corner.Y + size.Height - corner_.Y};
        }
        // Of what is hidden a trace is left.
        constexpr double thinnest = 10;
        const auto [left, right] = columns_[column];
        const auto [top, bottom] = rows_[row];
        if (right - left < thinnest || bottom - top < thinnest) return std::nullopt;
        return IndentedCell{
            .left = left, .top = top, .right = right, .bottom = bottom, .indent = 0};
    }

private:
    const SheetRecord& sheet_;
    css::awt::Point corner_;
    std::map<std::int32_t, std::pair<double, double>> columns_;
    std::map<std::int32_t, std::pair<double, double>> rows_;
};

/// In hundredths of a millimetre; 0 where the texts aren't set at the right.
std::int16_t rightIndentOf(const uno::Reference<uno::XInterface>& cells) {
    const NamedValues values(cells, {"HoriJustify", indentOfCells});
    const auto across = values.get<css::table::CellHoriJustify>("HoriJustify");
    return across == css::table::CellHoriJustify_RIGHT ? values.get<std::int16_t>(indentOfCells)
                                                       : std::int16_t{0};
}

void addCells(std::vector<IndentedCell>& found, Edges& edges, const model::CellBlock& cells,
              double indent) {
    for (std::int32_t row = cells.firstRow; row <= cells.lastRow; ++row) {
        for (std::int32_t column = cells.firstColumn; column <= cells.lastColumn; ++column) {
            if (auto cell = edges.cellAt(column, row)) {
                cell->indent = indent;
                found.push_back(*cell);
            }
        }
    }
}

}  // namespace

bool hasIndents(const SheetRecord& sheet) {
    const auto state =
        as<css::beans::XPropertyState>(sheet.sheet())->getPropertyState(indentOfCells);
    return state == css::beans::PropertyState_AMBIGUOUS_VALUE ||
           property<std::int16_t>(sheet.sheet(), indentOfCells) > 0;
}

std::vector<IndentedCell> rightIndentsOn(const SheetRecord& sheet, const model::CellBlock& block) {
    std::vector<IndentedCell> found;
    if (block.cells() > mostCellsAskedFor) return found;
    Edges edges(sheet, block);
    if (edges.isReadFromRight()) return found;
    const auto filled = filledParts(sheet.range(block));
    for (const auto& alike : cellsAlike(sheet.range(block))) {
        const std::int16_t indent = rightIndentOf(alike);
        if (indent <= 0) continue;
        for (const auto& address : alike->getRangeAddresses()) {
            for (const auto& part : filled) {
                if (const auto cells = intersection(blockOf(address), blockOf(part)))
                    addCells(found, edges, *cells, indent);
            }
        }
    }
    return found;
}

}  // namespace libreoffice::excel

#include "office/libreoffice/excel/contents_of_cells.h"

#include <com/sun/star/sheet/XCellRangeData.hpp>
#include <com/sun/star/sheet/XCellRangesQuery.hpp>
#include <com/sun/star/sheet/XSheetCellRanges.hpp>

#include <algorithm>

#include "office/libreoffice/excel/answered.h"

namespace libreoffice::excel {

namespace {

office::CellContent contentOf(const uno::Any& cell) {
    using Content = office::CellContent::Kind;
    double number = 0;
    if (cell >>= number) return {Content::Number, number, {}};
    rtl::OUString text;
    // An error is neither.
    if (!(cell >>= text)) return {Content::Error, 0, {}};
    return {text.isEmpty() ? Content::Blank : Content::Text, 0, fromUno(text)};
}

/// A formula may yield a text of no letters, which is read as a blank cell is.
void tellEmptyTexts(office::CellContents& contents,
                    const uno::Reference<css::table::XCellRange>& range,
                    const model::CellBlock& block) {
    using Content = office::CellContent::Kind;
    const auto isBlank = [](const office::CellContent& cell) {
        return cell.kind == Content::Blank;
    };
    if (std::none_of(contents.cells.begin(), contents.cells.end(), isBlank)) return;
    for (const css::table::CellRangeAddress& area : filledParts(range)) {
        for (sal_Int32 row = area.StartRow; row <= area.EndRow; ++row) {
            for (sal_Int32 column = area.StartColumn; column <= area.EndColumn; ++column) {
                const auto place =
                    (row - block.firstRow) * block.columns() + column - block.firstColumn;
                office::CellContent& cell = contents.cells[static_cast<std::size_t>(place)];
                if (isBlank(cell)) cell.kind = Content::Text;
            }
        }
    }
}

void markShown(std::vector<bool>& lines, sal_Int32 first, sal_Int32 last, sal_Int32 begin) {
    std::fill(lines.begin() + (first - begin), lines.begin() + (last - begin + 1), true);
}

}  // namespace

office::CellContents readContents(SheetRecord& sheet, const model::CellBlock& block) {
    // Whole columns are cut where nothing is written any more.
    constexpr double many = 10'000;
    model::CellBlock read = block;
    if (block.cells() > many) {
        const model::CellBlock used = sheet.used();
        read.lastRow = std::max(read.firstRow, std::min(read.lastRow, used.lastRow));
        read.lastColumn = std::max(read.firstColumn, std::min(read.lastColumn, used.lastColumn));
    }
    const auto range = sheet.range(read);
    office::CellContents contents;
    contents.showsRow.resize(static_cast<std::size_t>(read.rows()));
    contents.showsColumn.resize(static_cast<std::size_t>(read.columns()));
    contents.cells.reserve(contents.showsRow.size() * contents.showsColumn.size());
    const auto rows = as<css::sheet::XCellRangeData>(range)->getDataArray();
    for (const auto& row : rows) {
        for (const uno::Any& cell : row) contents.cells.push_back(contentOf(cell));
    }
    tellEmptyTexts(contents, range, read);
    const auto shown =
        answered(as<css::sheet::XCellRangesQuery>(range)->queryVisibleCells())->getRangeAddresses();
    for (const css::table::CellRangeAddress& area : shown) {
        markShown(contents.showsRow, area.StartRow, area.EndRow, read.firstRow);
        markShown(contents.showsColumn, area.StartColumn, area.EndColumn, read.firstColumn);
    }
    return contents;
}

}  // namespace libreoffice::excel

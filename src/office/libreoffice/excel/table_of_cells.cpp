#include "office/libreoffice/excel/table_of_cells.h"

#include <com/sun/star/sheet/FormulaResult.hpp>
#include <com/sun/star/sheet/XCellRangesQuery.hpp>
#include <com/sun/star/sheet/XConditionalFormats.hpp>
#include <com/sun/star/sheet/XSheetCellRanges.hpp>
#include <com/sun/star/table/XColumnRowRange.hpp>
#include <com/sun/star/text/XTextRange.hpp>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <set>

#include "office/failure.h"
#include "office/libreoffice/excel/answered.h"
#include "office/libreoffice/excel/cell_conditions.h"
#include "office/libreoffice/excel/cell_formats.h"
#include "office/libreoffice/excel/cells_as_html.h"
#include "office/libreoffice/excel/colour_scales.h"
#include "office/libreoffice/excel/data_bars.h"
#include "office/libreoffice/excel/fitted_texts.h"
#include "office/libreoffice/excel/html_places.h"
#include "office/libreoffice/excel/selected_cells.h"
#include "office/libreoffice/excel/table_lines.h"
#include "office/libreoffice/excel/written_scripts.h"
#include "office/libreoffice/units.h"
#include "office/units.h"

namespace libreoffice::excel {

namespace {

using office::CellLine;
using office::CellLook;
using office::TableLook;

/// Nothing if they have more cells than that.
std::optional<ShownLines> shownLinesUpTo(const uno::Reference<css::table::XCellRange>& cells,
                                         std::size_t mostCells) {
    std::set<std::int32_t> columns, rows;
    const auto shown = answered(as<css::sheet::XCellRangesQuery>(cells)->queryVisibleCells());
    for (const css::table::CellRangeAddress& part : shown->getRangeAddresses()) {
        if (blockOf(part).cells() > static_cast<double>(mostCells)) return std::nullopt;
        for (sal_Int32 column = part.StartColumn; column <= part.EndColumn; ++column)
            columns.insert(column);
        for (sal_Int32 row = part.StartRow; row <= part.EndRow; ++row) rows.insert(row);
    }
    if (columns.size() * rows.size() > mostCells) return std::nullopt;
    return ShownLines{{columns.begin(), columns.end()}, {rows.begin(), rows.end()}};
}

ShownLines shownLinesOf(const uno::Reference<css::table::XCellRange>& cells,
                        std::size_t mostCells) {
    auto shown = shownLinesUpTo(cells, mostCells);
    if (!shown) office::refuse("Range.Copy", "These are too many cells for a table");
    if (shown->columns.empty()) office::refuse("Range.Copy", "There is nothing to make a table of");
    return *std::move(shown);
}

/// The widths of columns or the heights of rows. Those that are known in pixels of the screen are
/// made to fill the whole, so that rounding doesn't add up; the suite is asked one by one for the
/// others, and for all if the pixels are of another size.
std::vector<double> lengthsOf(const uno::Reference<css::container::XIndexAccess>& lines,
                              const char* property, const std::vector<std::int32_t>& shown,
                              const std::vector<std::optional<double>>& pixels, double wholePt) {
    const auto ask = [&](std::int32_t line) {
        const uno::Reference<uno::XInterface> one(lines->getByIndex(line), uno::UNO_QUERY_THROW);
        return pointsOf(libreoffice::property<std::int32_t>(one, property));
    };
    std::vector<double> lengths;
    for (std::size_t i = 0; i < shown.size(); ++i) {
        const auto known = i < pixels.size() ? pixels[i] : std::nullopt;
        lengths.push_back(known ? *known * office::pointsPerPixel : ask(shown[i]));
    }
    const double sum = std::accumulate(lengths.begin(), lengths.end(), 0.0);
    const double rounding = static_cast<double>(shown.size()) * office::pointsPerPixel;
    if (std::abs(sum - wholePt) > rounding) {
        std::transform(shown.begin(), shown.end(), lengths.begin(), ask);
    } else {
        for (double& length : lengths) length *= wholePt / sum;
    }
    return lengths;
}

void takeFonts(CellLook& look, const CellLook& own) {
    look.fontName = own.fontName;
    look.asianFontName = own.asianFontName;
    look.complexFontName = own.complexFontName;
    look.fontSizePt = own.fontSizePt;
}

/// Some cells of a block as the sheet shows them.
class DressedCells {
public:
    /// The cells whose conditions a copy of the block doesn't work out.
    DressedCells(SheetRecord& sheet, const model::CellBlock& block,
                 const std::vector<CellCondition>& conditions)
        : blocks_(UncopiedConditions(conditions).within(block)),
          looks_(blocks_.empty() ? nullptr : sheet.book().looks().of(sheet)) {}

    /// Nothing for a cell that the copy shows rightly, or nobody knows better.
    [[nodiscard]] const CellDress* at(const model::CellBlock& cell) const {
        if (looks_ == nullptr || !meetsAny(blocks_, cell)) return nullptr;
        return looks_->at(cell.firstColumn, cell.firstRow);
    }

private:
    std::vector<model::CellBlock> blocks_;
    SheetLooks* looks_;
};

/// Fills a table from what the suite says of its cells.
class TableMaker {
public:
    TableMaker(SheetRecord& sheet, const uno::Reference<css::table::XCellRange>& cells,
               const model::CellBlock& block, std::size_t mostCells)
        : sheet_(sheet),
          shown_(shownLinesOf(cells, mostCells)),
          formats_(readCellFormats(cells, shown_)),
          conditions_(sheet.book().looks().conditionsOn(sheet, block)),
          bars_(sheet, conditions_),
          scales_(sheet, conditions_),
          dressed_(sheet, block, conditions_),
          showsZeros_(
              property<bool>(sheet.book().model()->getCurrentController(), "ShowZeroValues", true)),
          errors_(errorsIn(cells)),
          places_(shown_),
          values_(formats_.ofCells.size()) {
        for (const std::size_t format : formats_.ofCells) {
            const CellLook& own = formats_.formats[format].look;
            CellLook look;
            // A cell that holds nothing is as high as its characters would be.
            takeFonts(look, own);
            look.fill = own.fill;
            cells_.push_back(look);
        }
    }

    [[nodiscard]] const ShownLines& shown() const { return shown_; }

    /// A row of cells as the suite writes it: those that are covered are left out.
    void putRow(const HtmlRow& html, std::size_t row) {
        for (const model::CellBlock& merged : places_.leftOutOf(html, row, sheet_))
            putLeftOut(merged);
        std::size_t column = 0;
        for (const HtmlCell& cell : html.cells) {
            column = places_.freeFrom(row, column);
            if (column == width()) return;
            const auto block = model::CellBlock::cell(shown_.rows[row], shown_.columns[column]);
            if (const CellDress* const dress = dressed_.at(block)) {
                HtmlCell dressed = cell;
                takeDress(dressed.look, *dress);
                dressed.fontColour = dress->fontColour;
                putCell(dressed, row, column);
            } else {
                putCell(cell, row, column);
            }
        }
    }

    /// Of each cell, row by row.
    [[nodiscard]] std::vector<CellValue> takeValues() { return std::move(values_); }

    [[nodiscard]] std::vector<CellLook> takeCells() {
        for (std::size_t row = 0; row < height(); ++row) {
            for (std::size_t column = 0; column < width(); ++column) {
                if (!at(row, column).isCovered) drawLines(row, column);
            }
        }
        return std::move(cells_);
    }

private:
    /// A place on the sheet, from 0.
    struct Place {
        std::int32_t column;
        std::int32_t row;
    };

    [[nodiscard]] std::size_t width() const { return shown_.columns.size(); }
    [[nodiscard]] std::size_t height() const { return shown_.rows.size(); }
    CellLook& at(std::size_t row, std::size_t column) { return cells_[row * width() + column]; }
    [[nodiscard]] const CellFormat& formatAt(std::size_t row, std::size_t column) const {
        return formats_.formats[formats_.ofCells[row * width() + column]];
    }
    [[nodiscard]] const CellLook& format(std::size_t row, std::size_t column) const {
        return formatAt(row, column).look;
    }

    /// Merged cells that begin in a hidden column or row: their text is told by no copy.
    void putLeftOut(const model::CellBlock& merged) {
        const auto cell = sheet_.sheet()->getCellByPosition(merged.firstColumn, merged.firstRow);
        const auto span = places_.take(merged);
        CellLook look = format(span.firstRow, span.firstColumn);
        look.text = fromUno(as<css::text::XTextRange>(cell)->getString());
        put(std::move(look), span);
    }

    void putCell(const HtmlCell& cell, std::size_t row, std::size_t column) {
        const Place place = {shown_.columns[column], shown_.rows[row]};
        put(lookOf(cell, row, column), place);
        const CellFormat& own = formatAt(row, column);
        CellValue value = {cell.number, own.numberFormat, own.shrinksToFit,
                           cell.number == 0.0 && isError(place), own.uprightTurn};
        if (value.isError) value.number.reset();
        if (value.number) {
            CellLook& look = at(row, column);
            look.bar = bars_.barOf(place.column, place.row, *value.number);
            takeScale(look, cell, place, own.look);
            look.fontColour =
                sheet_.book().formats().colourOf(*value.number, own.numberFormat, look.fontColour);
            if (*value.number == 0 && !showsZeros_) look.text.clear();
        }
        values_[row * width() + column] = value;
    }

    /// Puts a cell over all that it spans.
    void put(CellLook look, const Place& place) {
        const auto span = places_.take(
            {place.column, place.row, place.column + look.columns - 1, place.row + look.rows - 1});
        put(std::move(look), span);
    }
    void put(CellLook look, const HtmlPlaces::Span& span) {
        for (std::size_t row = span.firstRow; row < span.firstRow + span.rows; ++row) {
            for (std::size_t column = span.firstColumn; column < span.firstColumn + span.columns;
                 ++column)
                at(row, column).isCovered = true;
        }
        look.columns = static_cast<std::int32_t>(span.columns);
        look.rows = static_cast<std::int32_t>(span.rows);
        at(span.firstRow, span.firstColumn) = std::move(look);
    }

    static std::vector<model::CellBlock> errorsIn(
        const uno::Reference<css::table::XCellRange>& cells) {
        std::vector<model::CellBlock> errors;
        const auto found = answered(as<css::sheet::XCellRangesQuery>(cells)->queryFormulaCells(
            css::sheet::FormulaResult::ERROR));
        for (const auto& part : found->getRangeAddresses()) errors.push_back(blockOf(part));
        return errors;
    }
    [[nodiscard]] bool isError(const Place& place) const {
        return meetsAny(errors_, model::CellBlock::cell(place.row, place.column));
    }

    [[nodiscard]] CellLook lookOf(const HtmlCell& html, std::size_t row, std::size_t column) const {
        CellLook look = html.look;
        const CellLook& own = format(row, column);
        takeFonts(look, own);
        if (!formatAt(row, column).isAligned && !html.number && beginsFromRight(look.text))
            look.across = CellLook::Across::Right;
        look.indentPt = own.indentPt;
        look.wraps = own.wraps;
        look.rotation = own.rotation;
        look.isUnderlinedTwice = own.isUnderlinedTwice;
        look.down = html.down.value_or(own.down);
        look.fontColour = html.fontColour.value_or(automaticColourOn(look.fill));
        return look;
    }

    /// The suite sees no ground for letters in a scale's colour.
    void takeScale(CellLook& look, const HtmlCell& html, const Place& place,
                   const CellLook& own) const {
        const auto fill = scales_.colourOf(place.column, place.row, html.number.value_or(0));
        if (fill) look.fill = fill;
        if (!html.fontColour && (fill || scales_.isByFormula(place.column, place.row)))
            look.fontColour = automaticColourOn(own.fill);
    }

    /// Two cells share a line: the heavier of theirs is drawn.
    static const CellLine& heavier(const CellLine& one, const CellLine& other) {
        return other.widthPt > one.widthPt ? other : one;
    }
    [[nodiscard]] CellLine lineAbove(std::size_t row, std::size_t column) const {
        if (row == 0) return format(row, column).top;
        if (row == height()) return format(row - 1, column).bottom;
        return heavier(format(row - 1, column).bottom, format(row, column).top);
    }
    [[nodiscard]] CellLine lineLeftOf(std::size_t row, std::size_t column) const {
        if (column == 0) return format(row, column).left;
        if (column == width()) return format(row, column - 1).right;
        return heavier(format(row, column - 1).right, format(row, column).left);
    }
    void drawLines(std::size_t row, std::size_t column) {
        CellLook& look = at(row, column);
        look.left = look.right = look.top = look.bottom = {};
        look.falling = format(row, column).falling;
        look.rising = format(row, column).rising;
        const auto right = column + static_cast<std::size_t>(look.columns);
        const auto bottom = row + static_cast<std::size_t>(look.rows);
        for (std::size_t i = row; i < bottom; ++i) {
            look.left = heavier(look.left, lineLeftOf(i, column));
            look.right = heavier(look.right, lineLeftOf(i, right));
        }
        for (std::size_t i = column; i < right; ++i) {
            look.top = heavier(look.top, lineAbove(row, i));
            look.bottom = heavier(look.bottom, lineAbove(bottom, i));
        }
    }

    const SheetRecord& sheet_;
    ShownLines shown_;
    CellFormats formats_;
    std::vector<CellCondition> conditions_;
    DataBars bars_;
    ColourScales scales_;
    /// After all else that asks the workbook's looks, which may drop what this points to.
    DressedCells dressed_;
    bool showsZeros_;
    std::vector<model::CellBlock> errors_;
    HtmlPlaces places_;
    std::vector<CellLook> cells_;
    std::vector<CellValue> values_;
};

/// The window shows them selected no longer than it takes to copy them.
uno::Sequence<sal_Int8> htmlOf(SheetRecord& sheet,
                               const uno::Reference<css::table::XCellRange>& cells,
                               const model::CellBlock& block) {
    return SelectedCells(sheet, cells, block).copyAs("text/html");
}

}  // namespace

bool areBlank(SheetRecord& sheet, const uno::Reference<css::table::XCellRange>& cells) {
    if (filledParts(cells).hasElements()) return false;
    const CellFormats formats = readCellFormats(cells, {});
    const auto isSeen = [](const CellFormat& format) {
        const CellLook& look = format.look;
        return look.fill || look.left.widthPt > 0 || look.right.widthPt > 0 ||
               look.top.widthPt > 0 || look.bottom.widthPt > 0 || look.falling.widthPt > 0 ||
               look.rising.widthPt > 0;
    };
    if (std::any_of(formats.formats.begin(), formats.formats.end(), isSeen)) return false;
    const auto conditions = property<uno::Reference<css::sheet::XConditionalFormats>>(
        sheet.sheet(), "ConditionalFormats");
    return !conditions.is() || conditions->getLength() == 0;
}

bool isTooLargeForTable(SheetRecord& sheet, const model::CellBlock& block, std::size_t mostCells) {
    return !shownLinesUpTo(sheet.wholeCells(block), mostCells);
}

bool isTooWideForTable(SheetRecord& sheet, const model::CellBlock& block, std::size_t mostColumns) {
    const auto cells = sheet.wholeCells(block);
    if (static_cast<std::size_t>(blockOf(cells).columns()) <= mostColumns) return false;
    const auto shown = shownLinesUpTo(cells, mostCellsOfTable);
    return shown && shown->columns.size() > mostColumns;
}

std::optional<TableLook> tableOfBlankCells(SheetRecord& sheet,
                                           const uno::Reference<css::table::XCellRange>& cells) {
    if (!areBlank(sheet, cells)) return std::nullopt;
    const auto [corner, size] = placeOf(cells);
    return TableLook{{pointsOf(size.Width)},
                     {pointsOf(size.Height)},
                     {CellLook{}},
                     pointsOf(corner.X),
                     pointsOf(corner.Y)};
}

TableLook tableOfCells(SheetRecord& sheet, const uno::Reference<css::table::XCellRange>& cells,
                       const model::CellBlock& block, std::size_t mostCells) {
    // What may take its time goes before the cells are selected, where a user may be typing.
    TableMaker maker(sheet, cells, block, mostCells);
    const ShownLines& shown = maker.shown();
    const uno::Sequence<sal_Int8> copy = htmlOf(sheet, cells, block);
    const CellsAsHtml html = readCellsAsHtml(bytesOf(copy));

    TableLook table;
    const auto [corner, size] = placeOf(cells);
    table.leftPt = pointsOf(corner.X);
    table.topPt = pointsOf(corner.Y);
    const auto lines = as<css::table::XColumnRowRange>(sheet.sheet());
    std::vector<std::optional<double>> rowHeights;
    for (const HtmlRow& row : html.rows) rowHeights.push_back(row.heightPx);
    table.columnWidthsPt =
        lengthsOf(as<css::container::XIndexAccess>(lines->getColumns()), "Width", shown.columns,
                  {html.columnWidthsPx.begin(), html.columnWidthsPx.end()}, pointsOf(size.Width));
    table.rowHeightsPt = lengthsOf(as<css::container::XIndexAccess>(lines->getRows()), "Height",
                                   shown.rows, rowHeights, pointsOf(size.Height));

    for (std::size_t row = 0; row < std::min(html.rows.size(), shown.rows.size()); ++row)
        maker.putRow(html.rows[row], row);
    table.cells = maker.takeCells();
    std::vector<CellValue> values = maker.takeValues();
    // The suite counts from the right there.
    if (corner.X < 0) mirror(table, values);
    std::shared_ptr<TextWidths>& widths = sheet.book().desk().textWidths;
    if (!widths) widths = std::make_shared<TextWidths>(sheet.book().desk().connection());
    fitTexts(table, values, *widths, sheet.book().formats());
    return withoutUnseenLines(table);
}

}  // namespace libreoffice::excel

#include "office/libreoffice/excel/book_looks.h"

#include <com/sun/star/drawing/XShape.hpp>
#include <com/sun/star/frame/XStorable.hpp>
#include <com/sun/star/io/IOException.hpp>
#include <com/sun/star/io/XSequenceOutputStream.hpp>
#include <com/sun/star/sheet/XCellRangesQuery.hpp>
#include <com/sun/star/sheet/XSheetCellRanges.hpp>
#include <com/sun/star/util/XModifyBroadcaster.hpp>
#include <com/sun/star/util/XModifyListener.hpp>
#include <cppuhelper/implbase1.hxx>
#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <set>
#include <utility>

#include "office/libreoffice/connection.h"
#include "office/libreoffice/excel/answered.h"
#include "office/libreoffice/excel/calc_document.h"
#include "office/libreoffice/excel/html_places.h"
#include "office/libreoffice/excel/numbers_in_cells.h"
#include "office/libreoffice/excel/right_indents.h"
#include "office/libreoffice/excel/selected_cells.h"

namespace libreoffice::excel {

namespace {

/// Hears of each change, whether a user or a program makes it.
class ChangeListener : public cppu::WeakImplHelper1<css::util::XModifyListener> {
public:
    explicit ChangeListener(std::shared_ptr<std::atomic<bool>> hasChanged)
        : hasChanged_(std::move(hasChanged)) {}
    void SAL_CALL modified(const css::lang::EventObject&) override { *hasChanged_ = true; }
    void SAL_CALL disposing(const css::lang::EventObject&) override { *hasChanged_ = true; }

private:
    std::shared_ptr<std::atomic<bool>> hasChanged_;
};

constexpr std::string_view beginOfRow = "<tr>";

/// What is written of a sheet, without the texts around it; nothing if it isn't there. The marks of
/// cells' texts are escaped in the page.
std::string_view tableOf(SheetRecord& sheet, std::string_view page) {
    constexpr std::string_view anchors = "<A NAME=\"table";
    std::size_t begin = page.find(fmt::format("{}{}\">", anchors, sheet.place()));
    if (begin == std::string_view::npos) {
        // The only sheet with contents goes without a name.
        const bool isOnly = page.find(anchors) == std::string_view::npos &&
                            filledParts(sheet.range(sheet.used())).hasElements();
        if (!isOnly) return {};
        begin = 0;
    }
    begin = page.find("<table", begin);
    const std::size_t end = page.find("</table>", begin);
    if (end == std::string_view::npos) return {};
    return page.substr(begin, end - begin);
}

std::vector<std::string_view> rowsOf(std::string_view table) {
    std::vector<std::string_view> rows;
    std::size_t begin = table.find(beginOfRow);
    while (begin < table.size()) {
        const std::size_t next = table.find(beginOfRow, begin + 1);
        rows.push_back(table.substr(begin, next - begin));
        begin = next;
    }
    return rows;
}

/// So many of the columns and rows that are shown, from a cell on.
ShownLines shownLinesFrom(const SheetRecord& sheet, const model::CellBlock& first,
                          std::size_t columns, std::size_t rows) {
    const auto whole = model::CellBlock::wholeSheet();
    const auto all = as<css::sheet::XCellRangesQuery>(
        sheet.range({first.firstColumn, first.firstRow, whole.lastColumn, whole.lastRow}));
    std::set<std::int32_t> shownColumns, shownRows;
    const auto add = [](std::set<std::int32_t>& lines, sal_Int32 from, sal_Int32 to,
                        std::size_t most) {
        for (sal_Int32 line = from; line <= to && line - from < static_cast<sal_Int32>(most);
             ++line)
            lines.insert(lines.end(), line);
    };
    for (const auto& part : answered(all->queryVisibleCells())->getRangeAddresses()) {
        add(shownColumns, part.StartColumn, part.EndColumn, columns);
        add(shownRows, part.StartRow, part.EndRow, rows);
    }
    ShownLines shown{{shownColumns.begin(), shownColumns.end()},
                     {shownRows.begin(), shownRows.end()}};
    shown.columns.resize(std::min(shown.columns.size(), columns));
    shown.rows.resize(std::min(shown.rows.size(), rows));
    return shown;
}

/// As many as the page has of a sheet. It goes on to the end of what is drawn there, be it in the
/// last row of all, which is reckoned in lines of the usual size.
double cellsOnPage(const model::CellBlock& used, css::container::XIndexAccess& drawn,
                   sal_Int32 count) {
    constexpr double usualWidth = 2258, usualHeight = 452;
    double right = 0, bottom = 0;
    for (sal_Int32 i = 0; i < count; ++i) {
        const uno::Reference<css::drawing::XShape> shape(drawn.getByIndex(i), uno::UNO_QUERY);
        if (!shape.is()) continue;
        const auto corner = shape->getPosition();
        const auto size = shape->getSize();
        right = std::max(right, std::abs(corner.X) + double(size.Width));
        bottom = std::max(bottom, corner.Y + double(size.Height));
    }
    return std::max(double(used.columns()), right / usualWidth) *
           std::max(double(used.rows()), bottom / usualHeight);
}

/// Whether the page of these sheets would take seconds, or telling that would.
bool takeSeconds(const std::vector<SheetRecordPtr>& sheets) {
    // LibreOffice writes 200,000 in a second.
    constexpr double mostCells = 500'000;
    constexpr sal_Int32 mostShapes = 2000;
    double cells = 0;
    std::vector<model::CellBlock> used;
    for (const SheetRecordPtr& sheet : sheets) {
        used.push_back(sheet->used());
        cells += used.back().cells();
        if (cells > mostCells) return true;
    }
    sal_Int32 shapes = 0;
    for (std::size_t i = 0; i < sheets.size(); ++i) {
        const auto drawn = drawPageOf(sheets[i]->sheet());
        const sal_Int32 count = drawn->getCount();
        shapes += count;
        if (shapes > mostShapes) return true;
        cells += cellsOnPage(used[i], *drawn, count) - used[i].cells();
        if (cells > mostCells) return true;
    }
    return false;
}

CellDress dressOf(const HtmlCell& cell) {
    const office::CellLook& look = cell.look;
    return {look.fill,     cell.fontColour,   look.isBold,
            look.isItalic, look.isUnderlined, look.isStruckOut};
}

}  // namespace

SheetLooks::SheetLooks(SheetRecord& sheet, std::string_view table)
    : sheet_(sheet),
      rows_(rowsOf(table)),
      shown_(shownLinesFrom(
          sheet, sheet.used(),
          readCellsAsHtml(table.substr(0, table.find(beginOfRow))).columnWidthsPx.size(),
          rows_.size())),
      cells_(shown_.columns.size() * shown_.rows.size()),
      places_(shown_) {
    // Where the cells of a row stand goes by those above that reach into it.
    for (std::size_t row = 0; row < shown_.rows.size(); ++row)
        if (rows_[row].find("rowspan=") != std::string_view::npos) readRow(row);
}

void SheetLooks::readRow(std::size_t row) {
    const std::string_view text = std::exchange(rows_[row], {});
    if (text.empty()) return;
    const std::size_t width = shown_.columns.size();
    for (const HtmlRow& html : readCellsAsHtml(text).rows) {
        for (const auto& merged : places_.leftOutOf(html, row, sheet_)) places_.take(merged);
        std::size_t column = 0;
        for (const HtmlCell& cell : html.cells) {
            column = places_.freeFrom(row, column);
            if (column == width) break;
            const std::int32_t left = shown_.columns[column], top = shown_.rows[row];
            places_.take({left, top, left + cell.look.columns - 1, top + cell.look.rows - 1});
            cells_[row * width + column] = dressOf(cell);
        }
    }
}

const CellDress* SheetLooks::at(std::int32_t column, std::int32_t row) {
    const auto [x, endOfX] = shownBetween(shown_.columns, column, column);
    const auto [y, endOfY] = shownBetween(shown_.rows, row, row);
    if (x == endOfX || y == endOfY) return nullptr;
    readRow(y);
    return &cells_[y * shown_.columns.size() + x];
}

BookLooks::BookLooks(CalcDocument& book)
    : book_(book),
      hasChanged_(std::make_shared<std::atomic<bool>>(false)) {
    as<css::util::XModifyBroadcaster>(book.model())
        ->addModifyListener(new ChangeListener(hasChanged_));
}

void BookLooks::forgetIfChanged() {
    if (!hasChanged_->exchange(false)) return;
    pages_.clear();
    sheets_.clear();
    styles_.clear();
}

BookLooks::OfSheet& BookLooks::knownOf(SheetRecord& sheet) {
    forgetIfChanged();
    return sheets_[sheet.shared_from_this()];
}

bool BookLooks::hasIndents(SheetRecord& sheet) {
    auto& known = knownOf(sheet).hasIndents;
    if (!known) known = excel::hasIndents(sheet);
    return *known;
}

std::vector<CellCondition> BookLooks::conditionsOn(SheetRecord& sheet,
                                                   const model::CellBlock& block) {
    auto& all = knownOf(sheet).conditions;
    if (!all) all = conditionsOf(sheet);
    std::vector<CellCondition> found;
    std::copy_if(all->begin(), all->end(), std::back_inserter(found),
                 [&](const CellCondition& each) { return meetsAny(each.blocks, block); });
    return found;
}

std::shared_ptr<const StyleFacts> BookLooks::styleFacts(const rtl::OUString& name) {
    forgetIfChanged();
    auto known = styles_.find(name);
    if (known == styles_.end()) {
        const CellStyle style = cellStyle(book_.model(), name);
        std::shared_ptr<const StyleFacts> facts;
        if (style.is())
            facts = std::make_shared<const StyleFacts>(styleFactsOf(book_.model(), style));
        known = styles_.emplace(name, std::move(facts)).first;
    }
    return known->second;
}

std::shared_ptr<const std::vector<double>> BookLooks::numbersIn(
    SheetRecord& sheet, const std::vector<model::CellBlock>& blocks) {
    auto& all = knownOf(sheet).numbers;
    const auto known = std::find_if(all.begin(), all.end(),
                                    [&](const Numbers& each) { return each.blocks == blocks; });
    if (known != all.end()) return known->sorted;
    auto sorted = std::make_shared<const std::vector<double>>(sortedNumbers(sheet, blocks));
    return all.emplace_back(Numbers{blocks, std::move(sorted)}).sorted;
}

std::vector<SheetRecordPtr> BookLooks::shownSheets() {
    std::vector<SheetRecordPtr> shown = book_.sheetList().all();
    std::erase_if(shown, [](const SheetRecordPtr& sheet) { return !sheet->isShown(); });
    return shown;
}

BookLooks::Page& BookLooks::pageOf(const std::vector<SheetRecordPtr>& shown) {
    forgetIfChanged();
    // Each may be large.
    constexpr std::size_t mostPages = 4;
    if (pages_.size() >= mostPages && !pages_.contains(shown)) pages_.clear();
    return pages_[shown];
}

bool BookLooks::isTooLarge(Page& page, const std::vector<SheetRecordPtr>& shown) const {
    if (!page.isTooLarge) page.isTooLarge = takeSeconds(shown);
    return *page.isTooLarge;
}

bool BookLooks::isTooLarge() {
    const auto shown = shownSheets();
    return isTooLarge(pageOf(shown), shown);
}

SheetLooks* BookLooks::of(SheetRecord& sheet) {
    const ShownForNow forNow(sheet);
    const auto shown = shownSheets();
    Page& page = pageOf(shown);
    if (isTooLarge(page, shown)) return nullptr;
    if (!page.text) page.text = written();
    const SheetRecordPtr key = sheet.shared_from_this();
    auto found = page.sheets.find(key);
    if (found == page.sheets.end()) {
        const auto table = tableOf(sheet, bytesOf(*page.text));
        if (table.empty()) return nullptr;
        found = page.sheets.try_emplace(key, sheet, table).first;
    }
    return &found->second;
}

/// The workbook stays as it is, but comes to the top of the list of those that were used last.
uno::Sequence<sal_Int8> BookLooks::written() const {
    const auto page = as<css::io::XSequenceOutputStream>(
        book_.connection().create("com.sun.star.io.SequenceOutputStream"));
    try {
        as<css::frame::XStorable>(book_.model())
            ->storeToURL("private:stream",
                         propertyValues({{"FilterName", uno::Any(rtl::OUString("HTML (StarCalc)"))},
                                         {"FilterOptions", uno::Any(rtl::OUString("SkipImages"))},
                                         {"OutputStream", uno::Any(page)}}));
        return page->getWrittenBytes();
    } catch (const css::io::IOException&) {
        // The cells then look as in a copy.
        return {};
    }
}

UnheardByLooks::UnheardByLooks(CalcDocument& book)
    : looks_(book.isUndisturbed() ? &book.looks() : nullptr),
      hadChanged_(looks_ != nullptr && *looks_->hasChanged_) {}

UnheardByLooks::~UnheardByLooks() {
    if (looks_ != nullptr) *looks_->hasChanged_ = hadChanged_;
}

}  // namespace libreoffice::excel

#include "office/libreoffice/excel/sheet_record.h"

#include <com/sun/star/awt/Point.hpp>
#include <com/sun/star/lang/XMultiServiceFactory.hpp>
#include <com/sun/star/sheet/XSheetCellRangeContainer.hpp>
#include <com/sun/star/sheet/XUsedAreaCursor.hpp>
#include <com/sun/star/util/XProtectable.hpp>
#include <com/sun/star/view/XSelectionSupplier.hpp>

#include <algorithm>

#include "office/libreoffice/excel/calc_document.h"
#include "office/libreoffice/excel/cell_range.h"
#include "office/libreoffice/excel/recovered_chart.h"
#include "office/libreoffice/units.h"
#include "office/model/excel/objects.h"

namespace libreoffice::excel {

namespace {

/// Searches columns and rows at once, since a cell tells both edges in one call.
struct Search {
    std::int32_t low = 0;
    std::int32_t high;
    std::int32_t step = 8;
    bool bounded = false;

    explicit Search(std::int32_t last) : high(last) {}

    [[nodiscard]] bool isDone() const { return low >= high; }
    /// Far out in growing steps first: what is looked for is near the corner of the sheet nearly
    /// always.
    [[nodiscard]] std::int32_t next() const {
        if (isDone()) return low;
        return bounded ? low + (high - low + 1) / 2 : std::min(low + step, high);
    }
    void learn(std::int32_t place, bool beginsBeforePoint) {
        if (isDone()) return;
        if (beginsBeforePoint) {
            low = place;
            step *= 2;
        } else {
            high = place - 1;
            bounded = true;
        }
    }
};

}  // namespace

SheetRecord::SheetRecord(CalcDocument& book, uno::Reference<css::sheet::XSpreadsheet> sheet,
                         std::string name)
    : book_(book),
      sheet_(std::move(sheet)),
      name_(std::move(name)),
      charts_(book, sheet_) {}

const uno::Reference<css::beans::XPropertySet>& SheetRecord::properties() {
    if (!properties_.is()) properties_ = as<css::beans::XPropertySet>(sheet_);
    return properties_;
}

const uno::Reference<css::container::XNamed>& SheetRecord::named() {
    if (!named_.is()) named_ = as<css::container::XNamed>(sheet_);
    return named_;
}

uno::Reference<css::table::XCellRange> SheetRecord::range(const model::CellBlock& block) const {
    return sheet_->getCellRangeByPosition(block.firstColumn, block.firstRow, block.lastColumn,
                                          block.lastRow);
}

bool SheetRecord::isThere() {
    return book_.sheetList().isThere(*this);
}

std::string SheetRecord::name() {
    return fromUno(named()->getName());
}

void SheetRecord::rename(const std::string& name) {
    named()->setName(toUno(name));
    name_ = this->name();
}

std::int32_t SheetRecord::place() {
    if (!addressable_.is()) addressable_ = as<css::sheet::XCellRangeAddressable>(sheet_);
    return addressable_->getRangeAddress().Sheet;
}

bool SheetRecord::isShown() {
    bool shown = true;
    properties()->getPropertyValue("IsVisible") >>= shown;
    return shown;
}

void SheetRecord::show(bool shown) {
    properties()->setPropertyValue("IsVisible", uno::Any(shown));
}

model::Visibility SheetRecord::visibility() {
    if (isShown()) {
        isVeryHidden = false;  // somebody has shown it by the menu
        return model::Visibility::Shown;
    }
    return isVeryHidden ? model::Visibility::VeryHidden : model::Visibility::Hidden;
}

void SheetRecord::setVisibility(model::Visibility visibility) {
    show(visibility == model::Visibility::Shown);
    isVeryHidden = visibility == model::Visibility::VeryHidden;
}

bool SheetRecord::isProtected() {
    return as<css::util::XProtectable>(sheet_)->isProtected();
}

void SheetRecord::activate() {
    const auto view = book_.view();
    if (!view.is()) office::model::refuse("Sheet.Activate", "The workbook has no window");
    view->setActiveSheet(sheet_);
}

model::CellsPtr SheetRecord::cells(const model::CellBlock& block) {
    return std::make_shared<CellRange>(shared_from_this(), block);
}

model::CellBlock SheetRecord::used() {
    const auto cursor = sheet_->createCursor();
    const auto used = as<css::sheet::XUsedAreaCursor>(cursor);
    used->gotoStartOfUsedArea(false);
    used->gotoEndOfUsedArea(true);
    return blockOf(as<css::sheet::XCellRangeAddressable>(cursor)->getRangeAddress());
}

model::CellBlock SheetRecord::cellAt(double left, double top) {
    const css::awt::Point point(hundredthMmOf(left), hundredthMmOf(top));
    Search column(model::CellBlock::lastColumnOfSheet);
    Search row(model::CellBlock::lastRowOfSheet);
    while (!column.isDone() || !row.isDone()) {
        const std::int32_t atColumn = column.next();
        const std::int32_t atRow = row.next();
        const auto cell = sheet_->getCellByPosition(atColumn, atRow);
        const auto corner = property<css::awt::Point>(cell, "Position");
        column.learn(atColumn, corner.X <= point.X);
        row.learn(atRow, corner.Y <= point.Y);
    }
    return model::CellBlock::cell(row.low, column.low);
}

void SheetRecord::select(const model::CellBlocks& blocks) {
    uno::Any cells;
    if (blocks.size() == 1) {
        cells <<= range(blocks.front());
    } else {
        const auto ranges = as<css::sheet::XSheetCellRangeContainer>(
            as<css::lang::XMultiServiceFactory>(book_.model())
                ->createInstance("com.sun.star.sheet.SheetCellRanges"));
        const auto at = static_cast<sal_Int16>(place());
        for (const model::CellBlock& block : blocks) {
            ranges->addRangeAddress(
                {at, block.firstColumn, block.firstRow, block.lastColumn, block.lastRow}, false);
        }
        cells <<= ranges;
    }
    as<css::view::XSelectionSupplier>(book_.controller())->select(cells);
}

std::vector<model::SheetChartPtr> SheetRecord::charts() {
    const auto& shapes = charts_.all();
    return {shapes.begin(), shapes.end()};
}

model::SheetChartPtr SheetRecord::ownChart() {
    const auto& shapes = charts_.all();
    if (!shapes.empty()) return shapes.front();
    // LibreOffice has lost it. The chart lasts as long as what it was recovered from.
    const auto recovered = std::make_shared<RecoveredChart>(*this);
    return {recovered, recovered->chart().get()};
}

NamedRanges& SheetRecord::names() {
    if (!names_) {
        uno::Reference<css::sheet::XNamedRanges> ranges;
        properties()->getPropertyValue("NamedRanges") >>= ranges;
        names_.emplace(book_, ranges);
    }
    return *names_;
}

}  // namespace libreoffice::excel

#include "office/libreoffice/excel/sheet_record.h"

#include <com/sun/star/lang/XMultiServiceFactory.hpp>
#include <com/sun/star/sheet/XCellRangesQuery.hpp>
#include <com/sun/star/sheet/XSheetCellCursor.hpp>
#include <com/sun/star/sheet/XSheetCellRange.hpp>
#include <com/sun/star/sheet/XSheetCellRangeContainer.hpp>
#include <com/sun/star/sheet/XSheetCellRanges.hpp>
#include <com/sun/star/sheet/XUsedAreaCursor.hpp>
#include <com/sun/star/util/XProtectable.hpp>
#include <com/sun/star/view/XSelectionSupplier.hpp>

#include "office/libreoffice/excel/answered.h"
#include "office/libreoffice/excel/calc_document.h"
#include "office/libreoffice/excel/cell_range.h"
#include "office/libreoffice/excel/recovered_chart.h"
#include "office/libreoffice/excel/sheet_map.h"
#include "office/libreoffice/excel/unrecorded.h"
#include "office/libreoffice/units.h"
#include "office/model/excel/objects.h"

namespace libreoffice::excel {

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

uno::Reference<css::table::XCellRange> SheetRecord::wholeCells(
    const model::CellBlock& block) const {
    const auto cursor =
        answered(sheet_->createCursorByRange(as<css::sheet::XSheetCellRange>(range(block))));
    cursor->collapseToMergedArea();
    return {cursor.get()};
}

bool SheetRecord::isThere() {
    return book_.sheetList().isThere(*this);
}

std::string SheetRecord::name() {
    return book_.isUndisturbed() ? name_ : fromUno(named()->getName());
}

void SheetRecord::rename(const std::string& name) {
    const Unrecorded quiet(book_);
    named()->setName(toUno(name));
    book_.noteOwnChange();
    name_ = fromUno(named()->getName());
}

std::int32_t SheetRecord::place() {
    if (!addressable_.is()) addressable_ = as<css::sheet::XCellRangeAddressable>(sheet_);
    return addressable_->getRangeAddress().Sheet;
}

bool SheetRecord::isShown() {
    if (lookAtShown_.holds(book_)) return isShown_;
    properties()->getPropertyValue("IsVisible") >>= isShown_;
    lookAtShown_.note(book_);
    return isShown_;
}

void SheetRecord::show(bool shown) {
    const Unrecorded quiet(book_);
    properties()->setPropertyValue("IsVisible", uno::Any(shown));
    book_.noteOwnChange();
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
    if (!view.is()) office::refuse("Sheet.Activate", "The workbook has no window");
    view->setActiveSheet(sheet_);
}

model::CellsPtr SheetRecord::cells(const model::CellBlock& block) {
    return std::make_shared<CellRange>(shared_from_this(), block);
}

model::CellBlock SheetRecord::used() {
    const auto cursor = answered(sheet_->createCursor());
    const auto used = as<css::sheet::XUsedAreaCursor>(cursor);
    used->gotoStartOfUsedArea(false);
    used->gotoEndOfUsedArea(true);
    return blockOf(as<css::sheet::XCellRangeAddressable>(cursor)->getRangeAddress());
}

std::unique_ptr<model::CellMap> SheetRecord::cellMap() {
    return std::make_unique<SheetMap>(shared_from_this());
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
    as<css::view::XSelectionSupplier>(book_.window())->select(cells);
}

std::vector<model::SheetChartPtr> SheetRecord::charts() {
    const auto& shapes = charts_.all();
    return {shapes.begin(), shapes.end()};
}

model::SheetChartPtr SheetRecord::ownChart() {
    const auto& shapes = charts_.all();
    if (!shapes.empty() && shapes.front()->hasArea()) return shapes.front();
    // LibreOffice has lost it, or shows nothing of it. The chart lasts as long as what it was
    // recovered from.
    const auto recovered = std::make_shared<RecoveredChart>(*this);
    recovered->chart()->belongTo(recovered, recovered->home());
    return {recovered, recovered->chart().get()};
}

model::CellBlock blockOf(const uno::Reference<css::table::XCellRange>& cells) {
    return blockOf(as<css::sheet::XCellRangeAddressable>(cells)->getRangeAddress());
}

PlaceOfCells placeOf(const uno::Reference<uno::XInterface>& cells) {
    const NamedValues place(cells, {"Position", "Size"});
    return {place.get<css::awt::Point>("Position"), place.get<css::awt::Size>("Size")};
}

uno::Sequence<css::table::CellRangeAddress> filledParts(
    const uno::Reference<css::table::XCellRange>& cells) {
    return answered(as<css::sheet::XCellRangesQuery>(cells)->queryContentCells(contentsOfCells))
        ->getRangeAddresses();
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

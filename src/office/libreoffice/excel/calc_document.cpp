#include "office/libreoffice/excel/calc_document.h"

#include <com/sun/star/awt/PosSize.hpp>
#include <com/sun/star/awt/XWindow.hpp>
#include <com/sun/star/container/XNamed.hpp>
#include <com/sun/star/document/XUndoManagerSupplier.hpp>
#include <com/sun/star/drawing/XShapes.hpp>
#include <com/sun/star/frame/XController.hpp>
#include <com/sun/star/frame/XFrame.hpp>
#include <com/sun/star/frame/XStorable.hpp>
#include <com/sun/star/sheet/XCellRangeAddressable.hpp>
#include <com/sun/star/sheet/XCellRangesQuery.hpp>
#include <com/sun/star/sheet/XSelectedSheetsSupplier.hpp>
#include <com/sun/star/sheet/XSheetCellRanges.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/util/XModifiable.hpp>
#include <com/sun/star/util/XProtectable.hpp>

#include <algorithm>
#include <utility>

#include "office/libreoffice/at_end.h"
#include "office/libreoffice/connection.h"
#include "office/libreoffice/excel/answered.h"

namespace libreoffice::excel {

namespace {

/// The chart on a sheet that a test finds.
template <class Test>
model::SheetChartPtr chartWhere(SheetRecord* sheet, Test test) {
    if (sheet == nullptr) return nullptr;
    for (const ChartShapePtr& chart : sheet->chartShapes().all()) {
        if (test(*chart)) return chart;
    }
    return nullptr;
}

model::SheetChartPtr selectedChart(SheetRecord* active,
                                   const uno::Reference<uno::XInterface>& selected) {
    const auto shapes = tryAs<css::drawing::XShapes>(selected);
    if (!shapes.is() || shapes->getCount() != 1) return nullptr;
    const uno::Reference<css::drawing::XShape> shape(shapes->getByIndex(0), uno::UNO_QUERY);
    return chartWhere(active, [&](const ChartShape& chart) { return chart.shape() == shape; });
}

/// While a chart is edited in place, it is the suite's current component.
model::SheetChartPtr editedChart(const Connection& connection, SheetRecord* active) {
    const uno::Reference<uno::XInterface> current = connection.desktop()->getCurrentComponent();
    if (!current.is()) return nullptr;
    return chartWhere(active, [&](const ChartShape& chart) {
        return property<uno::Reference<uno::XInterface>>(chart.shape(), "Model") == current;
    });
}

/// Whether all that is shown of a block belongs to some of its rows, which these are, in order.
bool showOf(const SheetRecord& sheet, const model::CellBlock& block,
            const model::CellBlocks& rows) {
    const auto shown =
        answered(as<css::sheet::XCellRangesQuery>(sheet.range(block))->queryVisibleCells());
    const auto parts = shown->getRangeAddresses();
    return std::all_of(parts.begin(), parts.end(), [&](const css::table::CellRangeAddress& part) {
        const auto at = std::partition_point(rows.begin(), rows.end(), [&](const auto& each) {
            return each.lastRow < part.StartRow;
        });
        return at != rows.end() && at->firstRow <= part.StartRow && part.EndRow <= at->lastRow;
    });
}

/// What is selected on the sheet on top. The suite tells the cells of each selected sheet, and of a
/// block that a filter runs through the shown rows.
model::CellBlocks selectedBlocks(CalcDocument& book,
                                 const uno::Reference<css::sheet::XSheetCellRanges>& ranges) {
    const auto sheet = std::dynamic_pointer_cast<SheetRecord>(book.activeSheet());
    if (!sheet) return {};
    const std::int32_t onTop = sheet->place();
    model::CellBlocks blocks;
    const auto addresses = ranges->getRangeAddresses();
    for (const css::table::CellRangeAddress& address : addresses) {
        if (address.Sheet == onTop) blocks.push_back(blockOf(address));
    }
    if (blocks.size() < 2) return blocks;
    std::sort(blocks.begin(), blocks.end(),
              [](const auto& one, const auto& other) { return one.firstRow < other.firstRow; });
    const model::CellBlock whole = around(blocks.front(), blocks.back());
    const bool areRowsOfOne =
        std::all_of(blocks.begin(), blocks.end(), [&](const model::CellBlock& block) {
            return block.firstColumn == whole.firstColumn && block.lastColumn == whole.lastColumn;
        });
    if (areRowsOfOne && showOf(*sheet, whole, blocks)) return {whole};
    return blocks;
}

}  // namespace

CalcDocument::CalcDocument(Desk& desk, uno::Reference<css::frame::XModel> calc)
    : Document(std::move(calc)),
      desk_(desk),
      formats_(desk.connection(), this->model()) {
    if (isUndisturbed()) standFor(url());
}

SheetList& CalcDocument::sheetList() {
    if (!sheets_) {
        sheets_.emplace(*this, as<css::sheet::XSpreadsheetDocument>(model())->getSheets(), facts());
        // A file that can't be looked into, being encrypted or of the old binary format, may have
        // chart sheets too.
        if (!facts().known && cameThrough("MS Excel")) sheets_->tellKindsByLooks();
    }
    return *sheets_;
}

model::CellBlocks CalcDocument::styledTablesOn(std::string_view sheet) {
    const auto& all = facts().sheets;
    const auto found =
        std::find_if(all.begin(), all.end(), [&](const auto& each) { return each.name == sheet; });
    return found != all.end() ? readStyledTables(url(), found->part) : model::CellBlocks();
}

const WorkbookFacts& CalcDocument::facts() {
    if (!facts_) facts_ = readWorkbookFacts(url());
    return *facts_;
}

bool CalcDocument::isReadOnly() {
    return leavesFileAlone_ || as<css::frame::XStorable>(model())->isReadonly();
}

bool CalcDocument::isModified() {
    return as<css::util::XModifiable>(model())->isModified();
}

void CalcDocument::setModified(bool modified) {
    as<css::util::XModifiable>(model())->setModified(modified);
}

bool CalcDocument::structureIsProtected() {
    return facts().structureIsLocked || as<css::util::XProtectable>(model())->isProtected();
}

void CalcDocument::activate() {
    if (const auto window = controller(); window.is()) window->getFrame()->activate();
    markActive();
}

std::vector<model::SheetPtr> CalcDocument::sheets() {
    const auto records = sheetList().all();
    return {records.begin(), records.end()};
}

NamedRanges& CalcDocument::names() {
    if (!names_)
        names_.emplace(*this,
                       property<uno::Reference<css::sheet::XNamedRanges>>(model(), "NamedRanges"));
    return *names_;
}

BookLooks& CalcDocument::looks() {
    if (!looks_) looks_.emplace(*this);
    return *looks_;
}

const uno::Reference<css::document::XUndoManager>& CalcDocument::undoSteps() {
    if (!undoSteps_.is())
        undoSteps_ = as<css::document::XUndoManagerSupplier>(model())->getUndoManager();
    return undoSteps_;
}

void CalcDocument::selectAgainLater(const uno::Any& selected) {
    if (!selectedBefore_.hasValue()) selectedBefore_ = selected;
}

void CalcDocument::selectAgain() {
    if (!selectedBefore_.hasValue()) return;
    asFarAsPossible(
        [&] { as<css::view::XSelectionSupplier>(controller())->select(selectedBefore_); });
    selectedBefore_.clear();
}

uno::Reference<css::frame::XController> CalcDocument::window() {
    selectAgain();
    return controller();
}

CopyingWindow CalcDocument::copyingWindow() {
    if (unseenWindow_) return *unseenWindow_;
    CopyingWindow found{.window = controller(), .selection = {}, .copier = {}};
    if (!found.window.is()) office::refuse("Range.Copy", "The workbook has no window to copy from");
    found.selection = tryAs<css::view::XSelectionSupplier>(found.window);
    if (!found.selection.is())
        office::refuse("Range.Copy", "The workbook is shown in print preview");
    found.copier = as<css::datatransfer::XTransferableSupplier>(found.window);
    if (desk_.opensHidden()) {
        // Copies from a hidden window have letters of the automatic colour black on dark grounds
        // too. The suite that opens it has no screen.
        const auto shown = found.window->getFrame()->getContainerWindow();
        shown->setPosSize(0, 0, 1, 1, css::awt::PosSize::POSSIZE);
        shown->setVisible(true);
        unseenWindow_ = found;
    }
    return found;
}

uno::Reference<css::sheet::XSpreadsheetView> CalcDocument::view() {
    return tryAs<css::sheet::XSpreadsheetView>(window());
}

void CalcDocument::removeSheet(const model::SheetPtr& sheet) {
    selectAgain();
    sheetList().remove(sheet);
}

model::SheetPtr CalcDocument::activeSheet() {
    if (const auto window = view(); window.is()) {
        const auto active = as<css::container::XNamed>(window->getActiveSheet());
        return sheetList().find(fromUno(active->getName()));
    }
    // A print preview of some sheets.
    if (const auto preview = tryAs<css::sheet::XSelectedSheetsSupplier>(window()); preview.is()) {
        const auto shown = preview->getSelectedSheets();
        if (shown.hasElements()) return sheetList().at(shown[0]);
    }
    for (const SheetRecordPtr& sheet : sheetList().all()) {
        if (sheet->isShown()) return sheet;
    }
    return nullptr;
}

model::Selection CalcDocument::selection() {
    selectAgain();
    const uno::Reference<uno::XInterface> selected = model()->getCurrentSelection();
    if (const auto range = tryAs<css::sheet::XCellRangeAddressable>(selected); range.is()) {
        const auto address = range->getRangeAddress();
        const SheetRecordPtr sheet = sheetList().at(address.Sheet);
        const model::CellBlock block = blockOf(address);
        // The suite names a merged cell by its first one alone.
        const bool isCell = block == model::CellBlock::cell(block.firstRow, block.firstColumn);
        return {sheet, {isCell && sheet ? blockOf(sheet->wholeCells(block)) : block}, nullptr};
    }
    if (const auto ranges = tryAs<css::sheet::XSheetCellRanges>(selected); ranges.is())
        return {activeSheet(), selectedBlocks(*this, ranges), nullptr};
    const model::SheetPtr active = activeSheet();
    auto* record = dynamic_cast<SheetRecord*>(active.get());
    auto chart = selectedChart(record, selected);
    if (!chart) chart = editedChart(connection(), record);
    return {active, {}, chart};
}

KeptModifiedFlag::~KeptModifiedFlag() {
    asFarAsPossible([&] {
        if (book_.isModified() != modified_) book_.setModified(modified_);
    });
}

}  // namespace libreoffice::excel

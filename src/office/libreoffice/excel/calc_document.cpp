#include "office/libreoffice/excel/calc_document.h"

#include <com/sun/star/container/XNamed.hpp>
#include <com/sun/star/document/XUndoManagerSupplier.hpp>
#include <com/sun/star/drawing/XShapes.hpp>
#include <com/sun/star/frame/XController.hpp>
#include <com/sun/star/frame/XFrame.hpp>
#include <com/sun/star/frame/XStorable.hpp>
#include <com/sun/star/sheet/XCellRangeAddressable.hpp>
#include <com/sun/star/sheet/XSheetCellRanges.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/util/XModifiable.hpp>
#include <com/sun/star/util/XProtectable.hpp>

#include <utility>

#include "office/libreoffice/at_end.h"
#include "office/libreoffice/connection.h"

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

}  // namespace

CalcDocument::CalcDocument(Desk& desk, uno::Reference<css::frame::XModel> calc)
    : Document(std::move(calc)),
      desk_(desk),
      formats_(desk.connection(), this->model()) {}

SheetList& CalcDocument::sheetList() {
    if (!sheets_) {
        sheets_.emplace(*this, as<css::sheet::XSpreadsheetDocument>(model())->getSheets(), facts());
        // A file that can't be looked into, being encrypted or of the old binary format, may have
        // chart sheets too.
        if (!facts().known && cameThrough("MS Excel")) sheets_->tellKindsByLooks();
    }
    return *sheets_;
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

const uno::Reference<css::document::XUndoManager>& CalcDocument::undoSteps() {
    if (!undoSteps_.is())
        undoSteps_ = as<css::document::XUndoManagerSupplier>(model())->getUndoManager();
    return undoSteps_;
}

uno::Reference<css::sheet::XSpreadsheetView> CalcDocument::view() const {
    return tryAs<css::sheet::XSpreadsheetView>(controller());
}

model::SheetPtr CalcDocument::activeSheet() {
    if (const auto window = view(); window.is()) {
        const auto active = as<css::container::XNamed>(window->getActiveSheet());
        return sheetList().find(fromUno(active->getName()));
    }
    for (const SheetRecordPtr& sheet : sheetList().all()) {
        if (sheet->isShown()) return sheet;
    }
    return nullptr;
}

model::Selection CalcDocument::selection() {
    const uno::Reference<uno::XInterface> selected = model()->getCurrentSelection();
    if (const auto range = tryAs<css::sheet::XCellRangeAddressable>(selected); range.is()) {
        const auto address = range->getRangeAddress();
        return {sheetList().at(address.Sheet), {blockOf(address)}, nullptr};
    }
    if (const auto ranges = tryAs<css::sheet::XSheetCellRanges>(selected); ranges.is()) {
        const auto addresses = ranges->getRangeAddresses();
        if (!addresses.hasElements()) return {};
        model::Selection cells{sheetList().at(addresses[0].Sheet), {}, nullptr};
        for (const css::table::CellRangeAddress& address : addresses)
            cells.blocks.push_back(blockOf(address));
        return cells;
    }
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

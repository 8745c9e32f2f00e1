#include "office/libreoffice/excel/selection.h"

#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/drawing/XShapes.hpp>
#include <com/sun/star/sheet/XCellRangeAddressable.hpp>
#include <com/sun/star/sheet/XSheetCellRanges.hpp>

#include "office/libreoffice/excel/objects.h"

namespace libreoffice::excel {

namespace {

CellBlock blockOf(const css::table::CellRangeAddress& address) {
    return {address.StartColumn, address.StartRow, address.EndColumn, address.EndRow};
}

/// The chart on the sheet on top that a test finds.
template <class Test>
ChartShapePtr chartWhere(const SheetPtr& sheet, Test test) {
    if (!sheet) return nullptr;
    for (const ChartShapePtr& chart : sheet->charts().all()) {
        if (test(chart)) return chart;
    }
    return nullptr;
}

ChartShapePtr selectedChart(const SheetPtr& active,
                            const uno::Reference<uno::XInterface>& selected) {
    const auto shapes = tryAs<css::drawing::XShapes>(selected);
    if (!shapes.is() || shapes->getCount() != 1) return nullptr;
    const uno::Reference<css::drawing::XShape> shape(shapes->getByIndex(0), uno::UNO_QUERY);
    return chartWhere(active, [&](const ChartShapePtr& chart) { return chart->shape == shape; });
}

/// While a chart is edited in place, it is the suite's current component.
ChartShapePtr editedChart(const Connection& connection, const SheetPtr& active) {
    const uno::Reference<uno::XInterface> current = connection.desktop()->getCurrentComponent();
    if (!current.is()) return nullptr;
    return chartWhere(active, [&](const ChartShapePtr& chart) {
        uno::Reference<uno::XInterface> model;
        chart->properties->getPropertyValue("Model") >>= model;
        return model == current;
    });
}

}  // namespace

office::Value selectionIn(const DeskPtr& desk, const BookPtr& book) {
    const uno::Reference<uno::XInterface> selected = book->model()->getCurrentSelection();
    if (!selected.is()) return {};
    SheetList& sheets = book->sheets(desk->connection());
    if (const auto range = tryAs<css::sheet::XCellRangeAddressable>(selected); range.is()) {
        const auto address = range->getRangeAddress();
        return rangeObject(desk, book, sheets.at(address.Sheet), {blockOf(address)});
    }
    if (const auto ranges = tryAs<css::sheet::XSheetCellRanges>(selected); ranges.is()) {
        const auto addresses = ranges->getRangeAddresses();
        if (!addresses.hasElements()) return {};
        CellBlocks blocks;
        for (const css::table::CellRangeAddress& address : addresses)
            blocks.push_back(blockOf(address));
        return rangeObject(desk, book, sheets.at(addresses[0].Sheet), std::move(blocks));
    }
    const SheetPtr active = book->activeSheet(desk->connection());
    const ChartShapePtr chart = selectedChart(active, selected);
    return chart ? chartObjectObject(desk, book, active, chart) : office::Value();
}

office::Value activeChartOf(const DeskPtr& desk, const BookPtr& book) {
    const SheetPtr active = book->activeSheet(desk->connection());
    if (active && active->isChartSheet) return sheetObject(desk, book, active);
    ChartShapePtr chart = selectedChart(active, book->model()->getCurrentSelection());
    if (!chart) chart = editedChart(desk->connection(), active);
    return chart ? embeddedChartObject(desk, book, active, chart) : office::Value();
}

}  // namespace libreoffice::excel

#include "office/libreoffice/excel/chart_sheet.h"

#include <utility>

#include "office/libreoffice/excel/chart_area.h"
#include "office/libreoffice/excel/chart_export.h"
#include "office/libreoffice/excel/chart_title.h"
#include "office/libreoffice/excel/objects.h"
#include "office/libreoffice/excel/recovered_chart.h"
#include "office/libreoffice/excel/sheet_members.h"

namespace libreoffice::excel {

namespace {

/// Any number but a worksheet's; Excel's own answer.
constexpr std::int32_t chartSheetType = 3;

}  // namespace

const office::MemberTable<ChartSheet>& ChartSheet::members() {
    using Self = ChartSheet;
    static const auto table =
        office::MemberTable<Self>("Chart")
            .property("Name", &Self::name, &Self::setName)
            .property("Index", &Self::index)
            .property("Type", [](Self&, const CallArguments&) { return Value(chartSheetType); })
            .property("Visible", &Self::visible, &Self::setVisible)
            .property("Parent", &Self::parent)
            .property("HasTitle", &Self::hasTitle)
            .property("ChartTitle", &Self::title)
            .property("ChartArea", &Self::area)
            .method("Export", {"Filename", "FilterName", "Interactive"}, &Self::exportPicture)
            .method("CopyPicture", {"Appearance", "Format", "Size"}, &Self::copyPicture)
            .method("Select", {"Replace"}, &Self::activate)
            .method("Activate", {}, &Self::activate)
            .method("Delete", {}, &Self::remove);
    return table;
}

ChartSheet::ChartSheet(DeskPtr desk, BookPtr book, SheetPtr sheet)
    : SheetObject(std::move(desk), std::move(book), std::move(sheet)) {}

void ChartSheet::withChart(const ChartUse& use) {
    const auto& charts = sheet().charts().all();
    if (!charts.empty()) {
        use(charts.front()->shape);
        return;
    }
    const RecoveredChart recovered(desk(), book(), sheet());
    use(recovered.shape());
}

Value ChartSheet::name() {
    return sheet().readName();
}

void ChartSheet::setName(const Value& name) {
    renameSheet(book(), desk().connection(), sheetPtr(), name.toText());
}

Value ChartSheet::index() {
    return sheet().place() + 1;
}

Value ChartSheet::visible() {
    return visibilityOf(sheet());
}

void ChartSheet::setVisible(const Value& visible) {
    requireSheet("Chart.Visible");
    setVisibility(book(), desk().connection(), sheet(), visible);
}

Value ChartSheet::parent() {
    return workbookObject(deskPtr(), bookPtr());
}

Value ChartSheet::hasTitle() {
    bool has = false;
    withChart([&](const auto& chart) { has = chartHasTitle(chart); });
    return has;
}

Value ChartSheet::title() {
    std::string text;
    withChart([&](const auto& chart) { text = chartTitle(chart); });
    return makeObject<ChartTitle>(deskPtr(), bookPtr(), text);
}

Value ChartSheet::area() {
    return makeObject<ChartArea>(deskPtr(), bookPtr(),
                                 makeObject<ChartSheet>(deskPtr(), bookPtr(), sheetPtr()));
}

Value ChartSheet::exportPicture(const CallArguments& arguments) {
    const std::string path = exportPath(arguments);
    withChart([&](const auto& chart) { pictureMaker(desk()).writeChart(chart, path); });
    return true;
}

Value ChartSheet::copyPicture(const CallArguments&) {
    withChart([&](const auto& chart) { desk().copiedPicture = takePictureOfChart(desk(), chart); });
    return true;
}

Value ChartSheet::activate(const CallArguments& arguments) {
    requireSheet(arguments.source());
    activateSheet(book(), sheetPtr(), arguments.source());
    return true;
}

Value ChartSheet::remove(const CallArguments&) {
    deleteSheet(book(), desk().connection(), sheetPtr());
    return true;
}

}  // namespace libreoffice::excel

#include "office/libreoffice/excel/embedded_chart.h"

#include <utility>

#include "office/libreoffice/excel/chart_area.h"
#include "office/libreoffice/excel/chart_export.h"
#include "office/libreoffice/excel/chart_title.h"
#include "office/libreoffice/excel/objects.h"

namespace libreoffice::excel {

const office::MemberTable<EmbeddedChart>& EmbeddedChart::members() {
    using Self = EmbeddedChart;
    static const auto table =
        office::MemberTable<Self>("Chart")
            .property("Name", &Self::name)
            .property("Parent", &Self::parent)
            .property("HasTitle", &Self::hasTitle)
            .property("ChartTitle", &Self::title)
            .property("ChartArea", &Self::area)
            .method("Export", {"Filename", "FilterName", "Interactive"}, &Self::exportPicture)
            .method("CopyPicture", {"Appearance", "Format", "Size"}, &Self::copyPicture)
            .method("Select", {"Replace"}, &Self::select)
            .method("Activate", {}, &Self::select);
    return table;
}

EmbeddedChart::EmbeddedChart(DeskPtr desk, BookPtr book, SheetPtr sheet, ChartShapePtr chart)
    : SheetObject(std::move(desk), std::move(book), std::move(sheet)),
      chart_(std::move(chart)) {}

/// As Excel calls the chart of a chart object: by the sheet and the object.
Value EmbeddedChart::name() {
    return sheet().readName() + " " + chart_->readName();
}

Value EmbeddedChart::parent() {
    return chartObjectObject(deskPtr(), bookPtr(), sheetPtr(), chart_);
}

Value EmbeddedChart::hasTitle() {
    return chartHasTitle(chart_->shape);
}

Value EmbeddedChart::title() {
    return makeObject<ChartTitle>(deskPtr(), bookPtr(), chartTitle(chart_->shape));
}

Value EmbeddedChart::area() {
    return makeObject<ChartArea>(
        deskPtr(), bookPtr(), makeObject<EmbeddedChart>(deskPtr(), bookPtr(), sheetPtr(), chart_));
}

Value EmbeddedChart::exportPicture(const CallArguments& arguments) {
    pictureMaker(desk()).writeChart(chart_->shape, exportPath(arguments));
    return true;
}

Value EmbeddedChart::copyPicture(const CallArguments&) {
    desk().copiedPicture = takePictureOfChart(desk(), chart_->shape);
    return true;
}

Value EmbeddedChart::select(const CallArguments&) {
    return parent().call("Select");
}

}  // namespace libreoffice::excel

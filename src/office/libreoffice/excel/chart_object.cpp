#include "office/libreoffice/excel/chart_object.h"

#include <com/sun/star/container/XChild.hpp>
#include <com/sun/star/drawing/XShapes.hpp>
#include <com/sun/star/view/XSelectionSupplier.hpp>

#include <algorithm>
#include <utility>

#include "office/libreoffice/excel/cell_at.h"
#include "office/libreoffice/excel/chart_export.h"
#include "office/libreoffice/excel/objects.h"
#include "office/libreoffice/excel/sheet_members.h"
#include "office/libreoffice/units.h"

namespace libreoffice::excel {

const office::MemberTable<ChartObject>& ChartObject::members() {
    using Self = ChartObject;
    static const auto table =
        office::MemberTable<Self>("ChartObject")
            .property("Name", &Self::name)
            .property("Index", &Self::index)
            .property("Chart", &Self::chart)
            .property("Parent", &Self::parent)
            .property("TopLeftCell", &Self::topLeftCell)
            .property("BottomRightCell", &Self::bottomRightCell)
            .property("Left", &Self::left)
            .property("Top", &Self::top)
            .property("Width", &Self::width)
            .property("Height", &Self::height)
            .method("Activate", {}, &Self::select)
            .method("Select", {"Replace"}, &Self::select)
            .method("Copy", {}, &Self::copyPicture)
            .method("CopyPicture", {"Appearance", "Format"}, &Self::copyPicture)
            .method("Delete", {}, &Self::remove);
    return table;
}

ChartObject::ChartObject(DeskPtr desk, BookPtr book, SheetPtr sheet, ChartShapePtr chart)
    : SheetObject(std::move(desk), std::move(book), std::move(sheet)),
      chart_(std::move(chart)) {}

Value ChartObject::name() {
    return chart_->readName();
}

Value ChartObject::index() {
    const auto& charts = sheet().charts().all();
    const auto place = std::find(charts.begin(), charts.end(), chart_);
    if (place != charts.end()) return static_cast<std::int32_t>(place - charts.begin()) + 1;
    throw Failure(FailureNumber::Disconnected, "ChartObject.Index", "The chart has been deleted");
}

Value ChartObject::chart() {
    return embeddedChartObject(deskPtr(), bookPtr(), sheetPtr(), chart_);
}

Value ChartObject::parent() {
    return sheetObject(deskPtr(), bookPtr(), sheetPtr());
}

Value ChartObject::topLeftCell() {
    const css::awt::Point corner = chart_->shape->getPosition();
    return rangeObject(deskPtr(), bookPtr(), sheetPtr(), {cellAt(sheet(), corner)});
}

Value ChartObject::bottomRightCell() {
    const css::awt::Point corner = chart_->shape->getPosition();
    const css::awt::Size size = chart_->shape->getSize();
    // The last point inside: a chart that ends with a cell does not reach into the next one.
    const css::awt::Point last(corner.X + size.Width - 1, corner.Y + size.Height - 1);
    return rangeObject(deskPtr(), bookPtr(), sheetPtr(), {cellAt(sheet(), last)});
}

Value ChartObject::left() {
    return pointsOf(chart_->shape->getPosition().X);
}

Value ChartObject::top() {
    return pointsOf(chart_->shape->getPosition().Y);
}

Value ChartObject::width() {
    return pointsOf(chart_->shape->getSize().Width);
}

Value ChartObject::height() {
    return pointsOf(chart_->shape->getSize().Height);
}

/// LibreOffice selects the frame; the chart is not opened for editing, which would take the
/// keyboard from the user.
Value ChartObject::select(const CallArguments& arguments) {
    requireSheet(arguments.source());
    activateSheet(book(), sheetPtr(), arguments.source());
    as<css::view::XSelectionSupplier>(book().controller())->select(uno::Any(chart_->shape));
    return true;
}

Value ChartObject::copyPicture(const CallArguments&) {
    desk().copiedPicture = takePictureOfChart(desk(), chart_->shape);
    return true;
}

Value ChartObject::remove(const CallArguments& arguments) {
    requireSheet(arguments.source());
    const auto page = as<css::container::XChild>(chart_->shape)->getParent();
    as<css::drawing::XShapes>(page)->remove(chart_->shape);
    return true;
}

}  // namespace libreoffice::excel

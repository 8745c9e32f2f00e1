#include "office_double/excel/chart.h"

#include "office_double/excel/chart_object.h"
#include "office_double/excel/workbook.h"
#include "office_double/excel/worksheet.h"
#include "office_double/loose_object.h"
#include "support/png_file.h"

namespace office_double {

const office::MemberTable<Chart>& Chart::members() {
    static const office::MemberTable<Chart> table = [] {
        office::MemberTable<Chart> made("Chart");
        return addTo(made)
            .property("Type", reading([](Chart&) { return 3; }))
            .property("Parent", &Chart::readParent)
            .property("ChartArea", &Chart::readChartArea)
            .property("HasTitle", reading(&Chart::hasTitle_), writing(&Chart::hasTitle_))
            .property("ChartTitle", &Chart::readTitle)
            .method("Export", {"Filename", "FilterName", "Interactive"}, &Chart::exportTo)
            .method("CopyPicture", {"Appearance", "Format", "Size"}, &Chart::copyPicture)
            .method("Paste", {"Type"}, &Chart::paste);
    }();
    return table;
}

Chart& Chart::title(std::string text) {
    hasTitle_ = true;
    title_ = std::move(text);
    return *this;
}

Chart& Chart::size(double width, double height) {
    width_ = width;
    height_ = height;
    return *this;
}

Workbook& Chart::book() const {
    const ChartObject* object = holder();
    return object == nullptr ? Sheet::book() : object->sheet().book();
}

ChartObject* Chart::holder() const {
    return dynamic_cast<ChartObject*>(&parent<DoubleObject>());
}

CopiedPicture Chart::extent() const {
    const ChartObject* object = holder();
    if (object != nullptr) return {object->box().width, object->box().height};
    return {width_, height_};
}

Value Chart::readParent() {
    return parent<DoubleObject>().handle();
}

Value Chart::readChartArea() {
    auto area = looseObject(*this, "ChartArea");
    area->reads("Parent", [this] { return Value(handle()); });
    area->method("Copy", {}, [this](const CallArguments&) {
        state()->clipboard = extent();
        return Value(true);
    });
    return valueOf(area);
}

Value Chart::readTitle() {
    if (!hasTitle_) {
        throw Failure(FailureNumber::ApplicationDefined, "Chart.ChartTitle",
                      "This chart has no title");
    }
    auto title = looseObject(*this, "ChartTitle");
    title->text("Text", title_);
    return valueOf(title);
}

Value Chart::exportTo(const CallArguments& arguments) {
    const CopiedPicture size = extent();
    try {
        support::writeBytes(arguments.at(0).toText(),
                            support::pngPictureOfPoints(size.width, size.height));
    } catch (const Failure&) {
        throw;
    } catch (const std::runtime_error& error) {
        throw Failure(FailureNumber::ApplicationDefined, arguments.source(), error.what());
    }
    return true;
}

Value Chart::copyPicture(const CallArguments&) {
    state()->clipboard = extent();
    return true;
}

Value Chart::paste(const CallArguments& arguments) {
    if (!state()->clipboard) {
        throw Failure(FailureNumber::ApplicationDefined, arguments.source(),
                      "There is no picture to paste");
    }
    return {};
}

}  // namespace office_double

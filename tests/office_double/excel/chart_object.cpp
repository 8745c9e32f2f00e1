#include "office_double/excel/chart_object.h"

#include "office_double/excel/application.h"
#include "office_double/excel/chart.h"
#include "office_double/excel/range.h"
#include "office_double/excel/workbook.h"
#include "office_double/excel/worksheet.h"

namespace office_double {

const office::MemberTable<ChartObject>& ChartObject::members() {
    using Self = ChartObject;
    using Table = office::MemberTable<Self>;
    static const Table table = [] {
        Table made("ChartObject");
        made.property("Name", reading(&Self::name_), writing(&Self::name_))
            .property("Index", &Self::readIndex)
            .property("Chart", &Self::readChart)
            .property("TopLeftCell", &Self::topLeftCell)
            .property("BottomRightCell", &Self::bottomRightCell)
            .property("Parent", reading([](Self& self) { return self.sheet().handle(); }))
            .method("Activate", {}, &Self::activate)
            .method("Select", {"Replace"}, &Self::activate)
            .method("CopyPicture", {"Appearance", "Format"}, &Self::copyPicture)
            .method("Copy", {}, &Self::copyPicture)
            .method("Delete", {}, &Self::deleteObject);
        const auto side = [&](const char* name, double Box::*which) {
            made.property(name, reading([which](Self& self) { return self.box_.*which; }),
                          [which](Self& self, const CallArguments&, const Value& points) {
                              self.box_.*which = points.toDouble();
                          });
        };
        side("Left", &Box::left);
        side("Top", &Box::top);
        side("Width", &Box::width);
        side("Height", &Box::height);
        return made;
    }();
    return table;
}

Worksheet& ChartObject::sheet() const {
    return parent<Worksheet>();
}

Chart& ChartObject::chart() {
    if (!chart_) chart_ = std::make_shared<Chart>(*this, sheet().name() + " " + name_);
    return *chart_;
}

Value ChartObject::readChart() {
    return chart().handle();
}

Value ChartObject::readIndex() {
    return sheet().indexOf(*this);
}

Value ChartObject::topLeftCell() {
    return sheet().rangeOf({Worksheet::cellAt(box_.left, box_.top)});
}

Value ChartObject::bottomRightCell() {
    return sheet().rangeOf({Worksheet::cellAt(box_.left + box_.width, box_.top + box_.height)});
}

Value ChartObject::activate(const CallArguments&) {
    Workbook& book = sheet().book();
    book.activateSheet(sheet().name());
    book.application().selectChart(chart());
    return true;
}

Value ChartObject::copyPicture(const CallArguments&) {
    state()->clipboard = CopiedPicture{box_.width, box_.height};
    return true;
}

Value ChartObject::deleteObject(const CallArguments&) {
    sheet().removeChart(*this);
    return true;
}

}  // namespace office_double

#include "office_double/excel/chart_object.h"

#include "office_double/excel/application.h"
#include "office_double/excel/chart.h"
#include "office_double/excel/range.h"
#include "office_double/excel/workbook.h"
#include "office_double/excel/worksheet.h"

namespace office_double {

const office::MemberTable<ChartObject>& ChartObject::members() {
    using Table = office::MemberTable<ChartObject>;
    const auto side = [](double Box::*which) {
        return std::pair<Table::Reader, Table::Writer>{
            [which](ChartObject& self, const CallArguments&) { return Value(self.box_.*which); },
            [which](ChartObject& self, const CallArguments&, const Value& points) {
                self.box_.*which = points.toDouble();
            }};
    };
    static const Table table = [&] {
        Table made("ChartObject");
        made.property(
                "Name", [](ChartObject& self, const CallArguments&) { return Value(self.name_); },
                [](ChartObject& self, const CallArguments&, const Value& name) {
                    self.name_ = name.toText();
                })
            .property("Index", &ChartObject::readIndex)
            .property("Chart", &ChartObject::readChart)
            .property("TopLeftCell", &ChartObject::topLeftCell)
            .property("BottomRightCell", &ChartObject::bottomRightCell)
            .property("Parent", [](ChartObject& self,
                                   const CallArguments&) { return Value(self.sheet().handle()); })
            .method("Activate", {}, &ChartObject::activate)
            .method("Select", {"Replace"}, &ChartObject::activate)
            .method("CopyPicture", {"Appearance", "Format"}, &ChartObject::copyPicture)
            .method("Delete", {}, &ChartObject::deleteObject);
        const std::pair<const char*, double Box::*> sides[] = {{"Left", &Box::left},
                                                               {"Top", &Box::top},
                                                               {"Width", &Box::width},
                                                               {"Height", &Box::height}};
        for (const auto& [name, which] : sides) {
            const auto [read, write] = side(which);
            made.property(name, read, write);
        }
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

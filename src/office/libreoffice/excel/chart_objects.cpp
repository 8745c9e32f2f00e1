#include "office/libreoffice/excel/chart_objects.h"

#include <utility>

#include "office/libreoffice/excel/objects.h"
#include "office/libreoffice/excel/picture_holder.h"

namespace libreoffice::excel {

const office::MemberTable<ChartObjects>& ChartObjects::members() {
    using Self = ChartObjects;
    static const auto table = office::MemberTable<Self>("ChartObjects")
                                  .property("Count", &Self::count)
                                  .property("Item", {"Index"}, &Self::item)
                                  .method("Add", {"Left", "Top", "Width", "Height"}, &Self::add);
    return table;
}

ChartObjects::ChartObjects(DeskPtr desk, BookPtr book, SheetPtr sheet)
    : SheetObject(std::move(desk), std::move(book), std::move(sheet)) {}

Value ChartObjects::count() {
    return static_cast<std::int32_t>(sheet().charts().all().size());
}

Value ChartObjects::item(const CallArguments& arguments) {
    const ItemIndex index(arguments.at(0), arguments.source());
    ChartShapePtr chart;
    if (index.isName()) {
        chart = sheet().charts().find(index.name());
        if (!chart) index.fail();
    } else {
        const auto& charts = sheet().charts().all();
        chart = charts[index.placeBelow(charts.size())];
    }
    return chartObjectObject(deskPtr(), bookPtr(), sheetPtr(), chart);
}

Value ChartObjects::add(const CallArguments& arguments) {
    const PictureBox box{arguments.at(0).toDouble(), arguments.at(1).toDouble(),
                         arguments.at(2).toDouble(), arguments.at(3).toDouble()};
    return makeObject<PictureHolder>(deskPtr(), bookPtr(), sheetPtr(),
                                     std::make_shared<HeldPicture>(HeldPicture{box, {}}));
}

}  // namespace libreoffice::excel

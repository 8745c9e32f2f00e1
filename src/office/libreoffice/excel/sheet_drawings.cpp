#include "office/libreoffice/excel/sheet_drawings.h"

#include <com/sun/star/drawing/XShape.hpp>
#include <com/sun/star/lang/XServiceInfo.hpp>

#include <algorithm>

namespace libreoffice::excel {

namespace {

bool isNote(const uno::Reference<css::drawing::XShape>& shape) {
    return as<css::lang::XServiceInfo>(shape)->supportsService("com.sun.star.drawing.CaptionShape");
}

bool meet(const PlaceOfCells& one, const PlaceOfCells& other) {
    return one.corner.X < other.corner.X + other.size.Width &&
           other.corner.X < one.corner.X + one.size.Width &&
           one.corner.Y < other.corner.Y + other.size.Height &&
           other.corner.Y < one.corner.Y + one.size.Height;
}

}  // namespace

SheetDrawings::SheetDrawings(SheetRecord& sheet, Which which) : sheet_(&sheet) {
    // On a sheet of more the first ones tell enough.
    constexpr sal_Int32 most = 200;
    const auto page = drawPageOf(sheet.sheet());
    const sal_Int32 count = std::min(page->getCount(), most);
    for (sal_Int32 i = 0; i < count; ++i) {
        const uno::Reference<css::drawing::XShape> shape(page->getByIndex(i), uno::UNO_QUERY);
        if (!shape.is() || isNote(shape)) continue;
        if (which == Which::All || !showsChart(shape))
            places_.push_back({shape->getPosition(), shape->getSize()});
    }
}

bool SheetDrawings::lieOn(const model::CellBlock& cells) const {
    if (places_.empty()) return false;
    const PlaceOfCells place = placeOf(sheet_->range(cells));
    return std::any_of(places_.begin(), places_.end(),
                       [&](const PlaceOfCells& each) { return meet(each, place); });
}

}  // namespace libreoffice::excel

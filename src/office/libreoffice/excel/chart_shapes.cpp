#include "office/libreoffice/excel/chart_shapes.h"

#include <com/sun/star/beans/XMultiPropertySet.hpp>
#include <com/sun/star/drawing/XDrawPageSupplier.hpp>
#include <com/sun/star/table/XTableChartsSupplier.hpp>

#include <algorithm>
#include <utility>

#include "office/text.h"

namespace libreoffice::excel {

namespace {

constexpr std::string_view chartClass = "12dcae26-281f-416f-a234-c3086127382e";

/// Class, name and key of a shape in one call; a shape that is no object has no class.
struct Identity {
    std::string classId;
    std::string name;
    std::string key;
};

Identity identityOf(const uno::Reference<css::drawing::XShape>& shape) {
    uno::Sequence<rtl::OUString> names(3);
    names[0] = "CLSID";
    names[1] = "Name";
    names[2] = "PersistName";
    const auto values = as<css::beans::XMultiPropertySet>(shape)->getPropertyValues(names);
    const auto text = [&](sal_Int32 i) {
        rtl::OUString value;
        values[i] >>= value;
        return fromUno(value);
    };
    return {office::lowerCase(text(0)), text(1), text(2)};
}

uno::Reference<css::drawing::XDrawPage> drawPageOf(
    const uno::Reference<css::sheet::XSpreadsheet>& sheet) {
// Marked as deprecated, yet the only way from a sheet to its shapes.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
    return as<css::drawing::XDrawPageSupplier>(sheet)->getDrawPage();
#pragma GCC diagnostic pop
}

}  // namespace

std::string ChartShape::readName() const {
    return hasName ? fromUno(named->getName()) : name;
}

ChartShapes::ChartShapes(uno::Reference<css::sheet::XSpreadsheet> sheet)
    : sheet_(std::move(sheet)) {}

const std::vector<ChartShapePtr>& ChartShapes::all() {
    // Asked of the sheet anew each time: the collection keeps the place that the sheet had when it
    // was made, and reads another sheet's charts once one has been inserted in front.
    if (!supplier_.is()) supplier_ = as<css::table::XTableChartsSupplier>(sheet_);
    const auto keys = supplier_->getCharts()->getElementNames();
    if (keys != seenKeys_) refresh(keys);
    return charts_;
}

ChartShapePtr ChartShapes::find(std::string_view name) {
    const auto isCalled = [&](const std::string& known) {
        return office::sameIgnoringCase(known, name);
    };
    const auto& charts = all();
    // The name last seen leads to the chart; one call tells whether it still has it.
    for (const ChartShapePtr& chart : charts) {
        if (isCalled(chart->name) && isCalled(chart->readName())) return chart;
    }
    for (const ChartShapePtr& chart : charts) {
        if (isCalled(chart->readName())) return chart;
    }
    return nullptr;
}

void ChartShapes::refresh(const uno::Sequence<rtl::OUString>& keys) {
    std::vector<ChartShapePtr> found;
    if (keys.hasElements()) {
        collect(as<css::container::XIndexAccess>(drawPageOf(sheet_)), found);
    }
    charts_ = std::move(found);
    seenKeys_ = keys;
}

void ChartShapes::collect(const uno::Reference<css::container::XIndexAccess>& shapes,
                          std::vector<ChartShapePtr>& into) {
    const sal_Int32 count = shapes->getCount();
    for (sal_Int32 i = 0; i < count; ++i) {
        const uno::Reference<css::drawing::XShape> shape(shapes->getByIndex(i), uno::UNO_QUERY);
        if (!shape.is()) continue;
        if (const ChartShapePtr known = held(shape)) {
            into.push_back(known);
            continue;
        }
        const Identity identity = identityOf(shape);
        if (identity.classId == chartClass) {
            into.push_back(std::make_shared<ChartShape>(ChartShape{
                shape, as<css::beans::XPropertySet>(shape), as<css::container::XNamed>(shape),
                identity.name.empty() ? identity.key : identity.name, !identity.name.empty()}));
        } else if (const auto group = tryAs<css::container::XIndexAccess>(shape); group.is()) {
            collect(group, into);
        }
    }
}

ChartShapePtr ChartShapes::held(const uno::Reference<css::drawing::XShape>& shape) const {
    const auto same = [&](const ChartShapePtr& chart) { return chart->shape == shape; };
    const auto found = std::find_if(charts_.begin(), charts_.end(), same);
    return found == charts_.end() ? nullptr : *found;
}

}  // namespace libreoffice::excel

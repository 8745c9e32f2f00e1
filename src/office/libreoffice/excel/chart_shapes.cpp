#include "office/libreoffice/excel/chart_shapes.h"

#include <com/sun/star/container/XChild.hpp>
#include <com/sun/star/drawing/XDrawPageSupplier.hpp>
#include <com/sun/star/drawing/XShapes.hpp>
#include <com/sun/star/frame/XController.hpp>
#include <com/sun/star/view/XSelectionSupplier.hpp>

#include <algorithm>
#include <utility>

#include "office/libreoffice/excel/calc_document.h"
#include "office/libreoffice/excel/copied.h"
#include "office/libreoffice/excel/picture_maker.h"
#include "office/libreoffice/units.h"
#include "office/model/excel/objects.h"
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

Identity identityOf(const uno::Reference<css::beans::XMultiPropertySet>& shape) {
    const NamedValues values(shape, {"CLSID", "Name", "PersistName"});
    const auto text = [&](const rtl::OUString& name) {
        return fromUno(values.get<rtl::OUString>(name));
    };
    return {office::lowerCase(text("CLSID")), text("Name"), text("PersistName")};
}

}  // namespace

bool showsChart(const uno::Reference<css::drawing::XShape>& shape) {
    return identityOf(as<css::beans::XMultiPropertySet>(shape)).classId == chartClass;
}

uno::Reference<css::drawing::XDrawPage> drawPageOf(
    const uno::Reference<css::sheet::XSpreadsheet>& sheet) {
// Marked as deprecated, yet the only way from a sheet to its shapes.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
    return as<css::drawing::XDrawPageSupplier>(sheet)->getDrawPage();
#pragma GCC diagnostic pop
}

ChartShape::ChartShape(CalcDocument& book, uno::Reference<css::drawing::XShape> shape,
                       uno::Reference<css::beans::XMultiPropertySet> properties, std::string name,
                       bool hasName)
    : book_(book),
      shape_(std::move(shape)),
      properties_(std::move(properties)),
      ownName_(std::move(name)),
      name_(ownName_),
      hasName_(hasName) {}

std::string ChartShape::name() {
    if (!hasName_ || book_.isUndisturbed()) return name_;
    std::string now = fromUno(NamedValues(properties_, {"Name"}).get<rtl::OUString>("Name"));
    return now == ownName_ ? name_ : now;
}

model::Box ChartShape::box() {
    const css::awt::Point corner = shape_->getPosition();
    const css::awt::Size size = shape_->getSize();
    return {pointsOf(corner.X), pointsOf(corner.Y), pointsOf(size.Width), pointsOf(size.Height)};
}

bool ChartShape::hasArea() const {
    return isArea(shape_->getSize());
}

office::CopiedPtr ChartShape::copy(office::CopySource source) {
    if (source.kind == office::CopySource::Kind::Chart) {
        SheetOfChart home = home_.document.is() ? home_ : SheetOfChart{book_.model(), source.sheet};
        return std::make_shared<CopiedChart>(book_, std::move(source), shape_, std::move(home),
                                             owner_.lock());
    }
    return std::make_shared<CopiedPicture>(book_.desk(), std::move(source), lookOf(shape_).graphic,
                                           areaOf(shape_));
}

void ChartShape::writePicture(const std::string& path, office::PictureKind kind) {
    pictureMaker(book_.desk()).writeChart(shape_, path, kind);
}

void ChartShape::paste(const office::CopiedPtr&) {
    office::refuse("Chart.Paste", "This chart has data of its own");
}

void ChartShape::select() {
    as<css::view::XSelectionSupplier>(book_.window())->select(uno::Any(shape_));
}

void ChartShape::remove() {
    const auto page = as<css::container::XChild>(shape_)->getParent();
    as<css::drawing::XShapes>(page)->remove(shape_);
    book_.noteOwnChange();
}

ChartShapes::ChartShapes(CalcDocument& book, uno::Reference<css::sheet::XSpreadsheet> sheet)
    : book_(book),
      sheet_(std::move(sheet)) {}

const std::vector<ChartShapePtr>& ChartShapes::all() {
    if (look_.holds(book_)) return charts_;
    // Asked of the sheet anew each time: the collection keeps the place that the sheet had when it
    // was made, and reads another sheet's charts once one has been inserted in front.
    if (!supplier_.is()) supplier_ = as<css::table::XTableChartsSupplier>(sheet_);
    // A sheet of a workbook that was closed has none.
    const uno::Reference<css::table::XTableCharts> charts(supplier_->getCharts(),
                                                          uno::UNO_SET_THROW);
    const auto keys = charts->getElementNames();
    if (keys != seenKeys_) refresh(keys);
    look_.note(book_);
    return charts_;
}

ChartShapePtr ChartShapes::find(std::string_view name) {
    const auto isCalled = [&](const std::string& known) {
        return office::sameIgnoringCase(known, name);
    };
    const auto& charts = all();
    // The name last seen leads to the chart; one call tells whether it still has it.
    for (const ChartShapePtr& chart : charts) {
        if (isCalled(chart->knownName()) && isCalled(chart->name())) return chart;
    }
    for (const ChartShapePtr& chart : charts) {
        if (isCalled(chart->name())) return chart;
    }
    return nullptr;
}

void ChartShapes::refresh(const uno::Sequence<rtl::OUString>& keys) {
    std::vector<ChartShapePtr> found;
    if (keys.hasElements()) {
        collect(as<css::container::XIndexAccess>(drawPageOf(sheet_)), found);
    }
    // One that has been listed keeps the name that it was listed by, whoever has gone: it comes
    // first.
    std::vector<ChartShapePtr> inTurn = found;
    std::stable_partition(inTurn.begin(), inTurn.end(), [&](const ChartShapePtr& chart) {
        return std::find(charts_.begin(), charts_.end(), chart) != charts_.end();
    });
    std::vector<std::string> names;
    names.reserve(inTurn.size());
    for (const ChartShapePtr& chart : inTurn) names.push_back(chart->knownName());
    names = office::distinctNames(std::move(names));
    for (std::size_t i = 0; i < inTurn.size(); ++i) inTurn[i]->callItself(std::move(names[i]));
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
        const auto properties = as<css::beans::XMultiPropertySet>(shape);
        const Identity identity = identityOf(properties);
        if (identity.classId == chartClass) {
            into.push_back(std::make_shared<ChartShape>(
                book_, shape, properties, identity.name.empty() ? identity.key : identity.name,
                !identity.name.empty()));
        } else if (const auto group = tryAs<css::container::XIndexAccess>(shape); group.is()) {
            collect(group, into);
        }
    }
}

ChartShapePtr ChartShapes::held(const uno::Reference<css::drawing::XShape>& shape) const {
    const auto same = [&](const ChartShapePtr& chart) { return chart->shape() == shape; };
    const auto found = std::find_if(charts_.begin(), charts_.end(), same);
    return found == charts_.end() ? nullptr : *found;
}

}  // namespace libreoffice::excel

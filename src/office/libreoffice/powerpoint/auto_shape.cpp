#include "office/libreoffice/powerpoint/auto_shape.h"

#include <com/sun/star/awt/XBitmap.hpp>
#include <com/sun/star/beans/XMultiPropertySet.hpp>
#include <com/sun/star/drawing/BitmapMode.hpp>
#include <com/sun/star/drawing/EnhancedCustomShapeAdjustmentValue.hpp>
#include <com/sun/star/drawing/FillStyle.hpp>
#include <com/sun/star/drawing/LineStyle.hpp>
#include <com/sun/star/graphic/XGraphic.hpp>
#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <string_view>

#include "office/failure.h"
#include "office/libreoffice/powerpoint/impress_document.h"

namespace libreoffice::powerpoint {

namespace {

using office::Failure;
using office::FailureNumber;
using Properties = uno::Sequence<css::beans::PropertyValue>;
using Adjustments = uno::Sequence<css::drawing::EnhancedCustomShapeAdjustmentValue>;

struct Outline {
    std::int32_t number;
    /// What LibreOffice calls it: of its own, and as loaded from a PowerPoint file.
    const char* own;
    std::string_view loaded;
};
constexpr std::array<Outline, 3> outlines = {{
    {outline::rectangle, "rectangle", "ooxml-rect"},
    {outline::roundedRectangle, "round-rectangle", "ooxml-roundRect"},
    {outline::oval, "ellipse", "ooxml-ellipse"},
}};

constexpr const char* geometryProperty = "CustomShapeGeometry";
constexpr std::string_view loadedPrefix = "ooxml-";

/// What stands for 1 in an adjustment: LibreOffice's own outlines and loaded ones count
/// differently.
constexpr double ownWhole = 21600;
constexpr double loadedWhole = 100000;

Properties geometryOf(HeldShape& shape) {
    return shape.get<Properties>(geometryProperty);
}

template <class Type>
Type entryOf(const Properties& geometry, const char* name) {
    Type value{};
    for (const auto& entry : geometry) {
        if (entry.Name.equalsAscii(name)) entry.Value >>= value;
    }
    return value;
}

std::string typeOf(const Properties& geometry) {
    return fromUno(entryOf<rtl::OUString>(geometry, "Type"));
}

double wholeOf(const Properties& geometry) {
    return typeOf(geometry).starts_with(loadedPrefix) ? loadedWhole : ownWhole;
}

Adjustments adjustmentsOf(const Properties& geometry) {
    return entryOf<Adjustments>(geometry, "AdjustmentValues");
}

const Outline& outlineNumbered(std::int32_t number) {
    const auto* found =
        std::find_if(outlines.begin(), outlines.end(),
                     [&](const Outline& candidate) { return candidate.number == number; });
    if (found == outlines.end())
        throw Failure(FailureNumber::InvalidProcedureCall, "Shape.AutoShapeType",
                      fmt::format("There is no outline {} here", number));
    return *found;
}

Properties geometryWithType(const Outline& wanted) {
    return propertyValues({{"Type", uno::Any(rtl::OUString::createFromAscii(wanted.own))}});
}

/// Takes over what a picture has beside its picture: names, shadow, effects kept for the file.
void copyLook(HeldShape& from, HeldShape& to) {
    // In the order that the calls for several properties demand.
    constexpr std::array<const char*, 12> shared = {
        "Description",     "InteropGrabBag",  "Name",
        "Shadow",          "ShadowBlur",      "ShadowColor",
        "ShadowSizeX",     "ShadowSizeY",     "ShadowTransparence",
        "ShadowXDistance", "ShadowYDistance", "Title"};
    uno::Sequence<rtl::OUString> names(static_cast<sal_Int32>(shared.size()));
    std::transform(shared.begin(), shared.end(), names.getArray(),
                   [](const char* name) { return rtl::OUString::createFromAscii(name); });
    const auto values =
        as<css::beans::XMultiPropertySet>(from.properties())->getPropertyValues(names);
    as<css::beans::XMultiPropertySet>(to.properties())->setPropertyValues(names, values);
}

void fillWithPicture(HeldShape& shape, const uno::Reference<css::graphic::XGraphic>& picture) {
    shape.set({{"FillStyle", uno::Any(css::drawing::FillStyle_BITMAP)},
               {"FillBitmapMode", uno::Any(css::drawing::BitmapMode_STRETCH)},
               {"LineStyle", uno::Any(css::drawing::LineStyle_NONE)},
               // Else the shape would grow to the height of its text, which it hasn't.
               {"TextAutoGrowHeight", uno::Any(false)}});
    shape.set("FillBitmap", as<css::awt::XBitmap>(picture));
}

void replacePicture(ImpressDocument& document, const HeldShapePtr& shape, const Outline& wanted) {
    const auto depth = shape->get<sal_Int32>("ZOrder");
    const auto graphic = shape->get<uno::Reference<css::graphic::XGraphic>>("Graphic");

    HeldShape filled(document.createShape("com.sun.star.drawing.CustomShape"), shape->page());
    shape->page()->page()->add(filled.shape());
    filled.shape()->setPosition(shape->position());
    filled.shape()->setSize(shape->size());
    filled.set(geometryProperty, geometryWithType(wanted));
    copyLook(*shape, filled);
    fillWithPicture(filled, graphic);
    document.replaceShape(shape, filled.shape());
    shape->set("ZOrder", depth);
}

}  // namespace

std::int32_t outlineOf(HeldShape& shape) {
    if (!shape.isCustomShape()) return outline::rectangle;
    const std::string type = typeOf(geometryOf(shape));
    const auto* found = std::find_if(outlines.begin(), outlines.end(), [&](const Outline& one) {
        return one.own == type || one.loaded == type;
    });
    return found != outlines.end() ? found->number : outline::notPrimitive;
}

void setOutline(ImpressDocument& document, const HeldShapePtr& shape, std::int32_t number) {
    const Outline& wanted = outlineNumbered(number);
    if (outlineOf(*shape) == number) return;
    if (shape->isCustomShape()) {
        shape->set(geometryProperty, geometryWithType(wanted));
    } else if (shape->isPicture()) {
        replacePicture(document, shape, wanted);
    } else {
        throw Failure(FailureNumber::ApplicationDefined, "Shape.AutoShapeType",
                      "LibreOffice gives an outline to pictures and drawn shapes only");
    }
}

std::int32_t adjustmentCount(HeldShape& shape) {
    return shape.isCustomShape() ? adjustmentsOf(geometryOf(shape)).getLength() : 0;
}

namespace {

/// The geometry of a shape that has an adjustment at this place.
Properties adjustableGeometry(HeldShape& shape, std::int32_t place) {
    Properties geometry;
    if (shape.isCustomShape()) geometry = geometryOf(shape);
    if (place < 1 || place > adjustmentsOf(geometry).getLength())
        throw Failure(FailureNumber::SubscriptOutOfRange, "Adjustments.Item",
                      fmt::format("The shape has no adjustment {}", place));
    return geometry;
}

}  // namespace

double adjustment(HeldShape& shape, std::int32_t place) {
    const Properties geometry = adjustableGeometry(shape, place);
    double value = 0;
    adjustmentsOf(geometry)[place - 1].Value >>= value;
    return value / wholeOf(geometry);
}

void setAdjustment(HeldShape& shape, std::int32_t place, double value) {
    Properties geometry = adjustableGeometry(shape, place);
    Adjustments adjustments = adjustmentsOf(geometry);
    adjustments.getArray()[place - 1].Value <<=
        static_cast<sal_Int32>(std::lround(value * wholeOf(geometry)));
    auto* entries = geometry.getArray();
    for (sal_Int32 i = 0; i < geometry.getLength(); ++i) {
        if (entries[i].Name == "AdjustmentValues") entries[i].Value <<= adjustments;
    }
    shape.set(geometryProperty, geometry);
}

}  // namespace libreoffice::powerpoint

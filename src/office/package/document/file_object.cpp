#include "office/package/document/file_object.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string_view>
#include <vector>

#include "office/failure.h"
#include "office/package/document/file_document.h"
#include "office/package/document/vml_shape.h"
#include "office/package/drawing/chart_order.h"
#include "office/package/drawing/drawing.h"

namespace office::package {

namespace {

/// Down and to the right, as far as Word's own shadows fall.
constexpr double fallDegrees = 45;
constexpr double fallPt = 3;
constexpr const char* shadowColour = R"(<a:prstClr val="black"><a:alpha val="40000"/></a:prstClr>)";

pugi::xml_node graphicOf(pugi::xml_node drawing) {
    const auto graphic = childNamed(drawing, ns::drawing, "graphic");
    return firstElement(childNamed(graphic, ns::drawing, "graphicData"));
}

/// What says how a picture or a shape looks; null for anything else.
pugi::xml_node looksIn(pugi::xml_node drawing) {
    return graphicOf(drawing).find_child([](const pugi::xml_node& child) {
        return localName(child) == "spPr" || localName(child) == "grpSpPr";
    });
}

void setSides(pugi::xml_node extent, const Size& size) {
    attributeFor(extent, "cx").set_value(emuOf(size.width));
    attributeFor(extent, "cy").set_value(emuOf(size.height));
}

word::ObjectShadow shadowIn(pugi::xml_node looks) {
    const auto found =
        childNamed(childNamed(looks, ns::drawing, "effectLst"), ns::drawing, "outerShdw");
    if (!found) return {};
    return {.isShown = true,
            .size = found.attribute("sx").as_double(wholeShare) / sharePerPercent,
            .blur = found.attribute("blurRad").as_double() / emuPerPoint};
}

void setShadowIn(pugi::xml_node looks, const word::ObjectShadow& shadow) {
    const auto before = effectFor(looks, "outerShdw");
    auto effects = before.parent();
    const long long share = std::llround(shadow.size * sharePerPercent);
    if (shadow.isShown)
        insertMarkup(
            effects,
            fmt::format(R"(<a:outerShdw blurRad="{}" dist="{}" dir="{}" sx="{}" sy="{}" )"
                        R"(algn="tl" rotWithShape="0">{}</a:outerShdw>)",
                        emuOf(shadow.blur), emuOf(fallPt),
                        std::llround(fallDegrees * anglePerDegree), share, share, shadowColour),
            before);
    effects.remove_child(before);
}

}  // namespace

FileObject::FileObject(FileDocument& document, pugi::xml_node element)
    : document_(document),
      element_(element),
      anchoring_(localName(element) == "anchor" || floats(vmlShapeIn(element))
                     ? word::Anchoring::Floating
                     : word::Anchoring::Inline) {}

Size FileObject::size() {
    if (const auto shape = vmlShapeIn(element_)) return sizeOf(shape);
    const auto extent = childNamed(element_, ns::wordDrawing, "extent");
    return {extent.attribute("cx").as_double() / emuPerPoint,
            extent.attribute("cy").as_double() / emuPerPoint};
}

void FileObject::resize(const Size& size) {
    document_.touch();
    if (const auto shape = vmlShapeIn(element_)) return package::resize(shape, size);
    const auto extent = childNamed(element_, ns::wordDrawing, "extent");
    if (!extent) refuse("Shape.Width", "An object of this kind has no size");
    setSides(extent, size);
    const auto transform = childNamed(looksIn(element_), ns::drawing, "xfrm");
    if (const auto inner = childNamed(transform, ns::drawing, "ext")) setSides(inner, size);
}

std::string FileObject::alternativeText() {
    if (const auto shape = vmlShapeIn(element_)) return shape.attribute("alt").value();
    return childNamed(element_, ns::wordDrawing, "docPr").attribute("descr").value();
}

void FileObject::setAlternativeText(const std::string& text) {
    document_.touch();
    const std::string shown = legible(text);
    if (const auto shape = vmlShapeIn(element_)) {
        attributeFor(shape, "alt").set_value(shown.c_str());
        return;
    }
    const auto properties = childNamed(element_, ns::wordDrawing, "docPr");
    if (!properties) refuse("Shape.AlternativeText", "An object of this kind has no such text");
    attributeFor(properties, "descr").set_value(shown.c_str());
}

std::string FileObject::chartPart() {
    const auto chart = graphicOf(element_);
    if (!isNamed(chart, ns::chart, "chart")) return {};
    return document_.package().partOfId(document_.mainPart(),
                                        attributeNamed(chart, ns::relationships, "id").value());
}

word::ObjectShadow FileObject::shadow() {
    if (const std::string part = chartPart(); !part.empty()) {
        const Xml chart(document_.package().read(part), part);
        return shadowIn(childNamed(chart.root(), ns::chart, "spPr"));
    }
    return shadowIn(looksIn(element_));
}

/// Of a chart, whose ground has the shadow, another part says it.
void FileObject::setShadow(const word::ObjectShadow& shadow) {
    if (const std::string part = chartPart(); !part.empty()) {
        const Xml chart(document_.package().read(part), part);
        setShadowIn(chartChild(chart.root(), "spPr"), shadow);
        document_.package().replace(part, chart.bytes());
    } else {
        const auto looks = looksIn(element_);
        if (!looks) refuse("Shape.Shadow", "An object of this kind has no shadow");
        setShadowIn(looks, shadow);
    }
    document_.touch();
    const auto room = childNamed(element_, ns::wordDrawing, "effectExtent");
    if (!room) return;
    const double fall = shadow.isShown ? fallPt / std::numbers::sqrt2 : 0;
    const double reach = shadow.isShown ? shadow.blur : 0;
    // Beside it the shadow may fall into the margins, or the object would make way for it.
    const auto side = [&](const char* name, double points) {
        attributeFor(room, name).set_value(emuOf(std::max(points, 0.0)));
    };
    side("t", reach - fall);
    side("b", reach + fall);
}

void FileObject::setLeft(double left) {
    if (anchoring() != word::Anchoring::Floating)
        refuse("Shape.Left", "What stands in a line has no place of its own");
    document_.touch();
    if (const auto shape = vmlShapeIn(element_)) return package::setLeft(shape, left);
    auto place = childNamed(element_, ns::wordDrawing, "positionH");
    attributeFor(place, "relativeFrom").set_value("margin");
    place.remove_children();
    insertMarkup(place, fmt::format("<wp:posOffset>{}</wp:posOffset>", emuOf(left)));
}

void FileObject::select() {
    document_.select(shared_from_this());
}

}  // namespace office::package

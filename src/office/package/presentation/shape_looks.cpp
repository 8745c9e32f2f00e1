// What a shape of a file looks like: its outline, its shadow, its reflection.

#include <fmt/format.h>

#include <array>
#include <cmath>
#include <numbers>

#include "office/package/drawing/chart_order.h"
#include "office/package/presentation/file_deck.h"
#include "office/package/presentation/file_shape.h"
#include "office/package/presentation/file_slide.h"
#include "office/text.h"

namespace office::package {

namespace {

struct OutlineName {
    powerpoint::Outline outline;
    const char* name;
};
constexpr std::array<OutlineName, 2> outlines = {{
    {powerpoint::Outline::Rectangle, "rect"},
    {powerpoint::Outline::RoundedRectangle, "roundRect"},
}};

/// The radius of a rounded rectangle that says none.
constexpr double plainRadius = 16667 / wholeShare;

void setNumber(pugi::xml_node node, const char* name, double value) {
    attributeFor(node, name).set_value(std::llround(value));
}

constexpr double radiansPerDegree = std::numbers::pi / 180;

/// The direction of an offset, as the files count angles: below a full turn.
double directionOf(double x, double y) {
    const double direction = std::round(std::atan2(y, x) / radiansPerDegree * anglePerDegree);
    return direction < 0 ? direction + 360 * anglePerDegree : direction;
}

}  // namespace

powerpoint::Outline FileShape::outline() {
    const auto drawn = drawnProperties();
    if (childNamed(drawn, ns::drawing, "custGeom")) return powerpoint::Outline::Other;
    const auto geometry = childNamed(drawn, ns::drawing, "prstGeom");
    if (!geometry) return powerpoint::Outline::Rectangle;
    const std::string_view name = geometry.attribute("prst").value();
    for (const OutlineName& one : outlines) {
        if (name == one.name) return one.outline;
    }
    return powerpoint::Outline::Other;
}

void FileShape::setOutline(powerpoint::Outline wanted) {
    if (outline() == wanted) return;
    auto drawn = looks("AutoShapeType");
    changed();
    drawn.remove_child(childNamed(drawn, ns::drawing, "custGeom"));
    auto geometry = childInOrder(drawn, ns::drawing, "prstGeom", looksOrder);
    for (const OutlineName& one : outlines) {
        if (one.outline == wanted) attributeFor(geometry, "prst").set_value(one.name);
    }
    geometry.remove_child(childNamed(geometry, ns::drawing, "avLst"));
    childInOrder(geometry, ns::drawing, "avLst", "avLst");
}

/// The number that forms an outline, at a place from 1; null where none is said.
pugi::xml_node FileShape::guide(std::int32_t place) {
    const auto geometry = childNamed(drawnProperties(), ns::drawing, "prstGeom");
    const auto guides =
        childrenNamed(childNamed(geometry, ns::drawing, "avLst"), ns::drawing, "gd");
    const auto index = static_cast<std::size_t>(place) - 1;
    return index < guides.size() ? guides[index] : pugi::xml_node();
}

std::optional<double> FileShape::adjustment(std::int32_t place) {
    const auto found = guide(place);
    const std::string formula = found.attribute("fmla").value();
    if (formula.starts_with("val ")) return leadingNumber(formula.substr(4)) / wholeShare;
    const bool isRound = outline() == powerpoint::Outline::RoundedRectangle;
    return isRound && place == 1 && !found ? std::optional(plainRadius) : std::nullopt;
}

bool FileShape::setAdjustment(std::int32_t place, double value) {
    if (!adjustment(place)) return false;
    changed();
    auto found = guide(place);
    if (!found) {
        const auto geometry = childNamed(drawnProperties(), ns::drawing, "prstGeom");
        found = childInOrder(childInOrder(geometry, ns::drawing, "avLst", "avLst"), ns::drawing,
                             "gd", "gd");
        attributeFor(found, "name").set_value("adj");
    }
    attributeFor(found, "fmla")
        .set_value(fmt::format("val {}", std::llround(value * wholeShare)).c_str());
    return true;
}

pugi::xml_node FileShape::effectsHolder() {
    if (const auto own = drawnProperties()) return own;
    const auto graphic =
        childNamed(childNamed(node_, ns::drawing, "graphic"), ns::drawing, "graphicData");
    const auto id =
        attributeNamed(childNamed(graphic, ns::chart, "chart"), ns::relationships, "id");
    if (!chart_ && id) {
        Package& package = slide_.deck().package();
        chartPart_ = package.partOfId(slide_.part(), id.value());
        if (chartPart_.empty()) return {};
        chart_ = std::make_unique<Xml>(package.read(chartPart_), chartPart_);
    }
    return chart_ ? chartChild(chart_->root(), "spPr") : pugi::xml_node();
}

void FileShape::write() {
    if (isChartChanged_) slide_.deck().package().replace(chartPart_, chart_->bytes());
    isChartChanged_ = false;
}

pugi::xml_node FileShape::effect(std::string_view name) {
    return childNamed(childNamed(effectsHolder(), ns::drawing, "effectLst"), ns::drawing, name);
}

pugi::xml_node FileShape::madeEffect(std::string_view member, std::string_view name) {
    auto drawn = effectsHolder();
    // The ground of a chart takes a shadow alone.
    if (chart_ && name != "outerShdw") drawn = {};
    if (!drawn) drawn = looks(member);
    changed();
    isChartChanged_ = chart_ != nullptr;
    return effectFor(drawn, name);
}

void FileShape::dropEffect(std::string_view name) {
    const auto found = effect(name);
    if (!found) return;
    changed();
    isChartChanged_ = chart_ != nullptr;
    found.parent().remove_child(found);
}

powerpoint::Shadow FileShape::shadow() {
    const auto found = effect("outerShdw");
    if (!found) return {};
    const double distance = found.attribute("dist").as_double() / emuPerPoint;
    const double angle = found.attribute("dir").as_double() / anglePerDegree * radiansPerDegree;
    return {.isVisible = true,
            .blurPt = found.attribute("blurRad").as_double() / emuPerPoint,
            .sizePercent = found.attribute("sx").as_double(wholeShare) / sharePerPercent,
            .offsetXPt = distance * std::cos(angle),
            .offsetYPt = distance * std::sin(angle),
            .colour = colourIn(found)};
}

void FileShape::setShadow(const powerpoint::Shadow& shadow) {
    if (!shadow.isVisible) return dropEffect("outerShdw");
    auto made = madeEffect("Shadow", "outerShdw");
    setNumber(made, "blurRad", shadow.blurPt * emuPerPoint);
    setNumber(made, "dist", std::hypot(shadow.offsetXPt, shadow.offsetYPt) * emuPerPoint);
    setNumber(made, "dir", directionOf(shadow.offsetXPt, shadow.offsetYPt));
    setNumber(made, "sx", shadow.sizePercent * sharePerPercent);
    setNumber(made, "sy", shadow.sizePercent * sharePerPercent);
    attributeFor(made, "algn").set_value("ctr");
    attributeFor(made, "rotWithShape").set_value("0");
    if (const auto before = childNamed(made, ns::drawing, "srgbClr")) {
        attributeFor(before, "val").set_value(hexColour(shadow.colour).c_str());
    } else {
        made.remove_children();
        insertMarkup(made, colourMarkup(shadow.colour));
    }
}

powerpoint::Reflection FileShape::reflection() {
    const auto found = effect("reflection");
    if (!found) return {};
    return {.offsetPt = found.attribute("dist").as_double() / emuPerPoint,
            .sizePercent = found.attribute("endPos").as_double(wholeShare) / sharePerPercent};
}

/// Blur and transparency stay those of the reflection before.
void FileShape::setReflection(const powerpoint::Reflection& reflection) {
    if (reflection.sizePercent <= 0) return dropEffect("reflection");
    constexpr double halfSeen = wholeShare / 2;
    constexpr double fadedOut = 300;
    auto made = madeEffect("Reflection", "reflection");
    setNumber(made, "blurRad", made.attribute("blurRad").as_double());
    setNumber(made, "stA", made.attribute("stA").as_double(halfSeen));
    setNumber(made, "endA", fadedOut);
    setNumber(made, "endPos", reflection.sizePercent * sharePerPercent);
    setNumber(made, "dist", reflection.offsetPt * emuPerPoint);
    setNumber(made, "dir", 90 * anglePerDegree);
    setNumber(made, "sy", -wholeShare);
    attributeFor(made, "algn").set_value("bl");
    attributeFor(made, "rotWithShape").set_value("0");
}

}  // namespace office::package

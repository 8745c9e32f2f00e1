#include "office/libreoffice/powerpoint/shape_effects.h"

#include <com/sun/star/beans/PropertyValue.hpp>

#include <cmath>
#include <string_view>
#include <vector>

namespace libreoffice::powerpoint {

namespace {

using Properties = uno::Sequence<css::beans::PropertyValue>;

constexpr const char* bagProperty = "InteropGrabBag";
constexpr std::string_view effectsEntry = "EffectProperties";
constexpr std::string_view reflectionEntry = "reflection";
constexpr std::string_view shadowEntry = "outerShdw";
constexpr std::string_view attributesEntry = "Attribs";

/// Lengths in the files are English metric units, 12700 to the point; shares are of 100000.
constexpr double emuPerPoint = 12700;
constexpr double wholeShare = 100000;

uno::Any valueOf(const Properties& properties, std::string_view name) {
    const rtl::OUString wanted = toUno(name);
    for (const auto& entry : properties) {
        if (entry.Name == wanted) return entry.Value;
    }
    return {};
}

Properties entriesOf(const Properties& properties, std::string_view name) {
    Properties entries;
    valueOf(properties, name) >>= entries;
    return entries;
}

Properties without(const Properties& properties, std::string_view name) {
    const rtl::OUString unwanted = toUno(name);
    std::vector<css::beans::PropertyValue> kept;
    for (const auto& entry : properties) {
        if (entry.Name != unwanted) kept.push_back(entry);
    }
    return {kept.data(), static_cast<sal_Int32>(kept.size())};
}

css::beans::PropertyValue entry(std::string_view name, const uno::Any& value) {
    css::beans::PropertyValue made;
    made.Name = toUno(name);
    made.Value = value;
    return made;
}

Properties withLast(const Properties& properties, const css::beans::PropertyValue& last) {
    Properties longer(properties);
    longer.realloc(properties.getLength() + 1);
    longer.getArray()[properties.getLength()] = last;
    return longer;
}

Properties withFirst(const Properties& properties, const css::beans::PropertyValue& first) {
    Properties longer(&first, 1);
    for (const auto& one : properties) longer = withLast(longer, one);
    return longer;
}

Properties bagOf(HeldShape& shape) {
    return shape.get<Properties>(bagProperty);
}

Properties effectsOf(const Properties& bag) {
    return entriesOf(bag, effectsEntry);
}

void keepEffects(HeldShape& shape, const Properties& bag, const Properties& effects) {
    Properties changed = without(bag, effectsEntry);
    if (effects.hasElements()) changed = withLast(changed, entry(effectsEntry, uno::Any(effects)));
    shape.set(bagProperty, changed);
}

/// Stands for the shape's shadow: the numbers and the colour are overwritten by those of the
/// shadow's own properties when the file is written, but only where an entry is there to be
/// overwritten.
css::beans::PropertyValue shadowStandIn() {
    const Properties attributes = propertyValues({{"blurRad", uno::Any(sal_Int32(0))},
                                                  {"dist", uno::Any(sal_Int32(0))},
                                                  {"dir", uno::Any(sal_Int32(0))},
                                                  {"rotWithShape", uno::Any(sal_Int32(0))}});
    return entry(shadowEntry,
                 uno::Any(propertyValues({{"Attribs", uno::Any(attributes)},
                                          {"RgbClr", uno::Any(sal_Int32(0))},
                                          {"RgbClrTransparency", uno::Any(sal_Int32(0))}})));
}

css::beans::PropertyValue reflectionForFile(const Reflection& reflection) {
    const auto share = [](double part) {
        return uno::Any(static_cast<sal_Int32>(std::lround(part * wholeShare)));
    };
    const auto length = [](double points) {
        return uno::Any(static_cast<sal_Int32>(std::lround(points * emuPerPoint)));
    };
    constexpr sal_Int32 downwards = 90 * 60000;
    constexpr double fadedOut = 0.003;
    const Properties attributes = propertyValues({{"blurRad", length(reflection.blurPt)},
                                                  {"stA", share(1 - reflection.transparency)},
                                                  {"endA", share(fadedOut)},
                                                  {"endPos", share(reflection.size)},
                                                  {"dist", length(reflection.offsetPt)},
                                                  {"dir", uno::Any(downwards)},
                                                  {"sy", share(-1)},
                                                  {"algn", uno::Any(rtl::OUString("bl"))},
                                                  {"rotWithShape", uno::Any(sal_Int32(0))}});
    return entry(reflectionEntry, uno::Any(propertyValues({{"Attribs", uno::Any(attributes)}})));
}

double numberIn(const Properties& properties, std::string_view name, double otherwise) {
    const uno::Any value = valueOf(properties, name);
    sal_Int64 number = 0;
    return (value >>= number) ? static_cast<double>(number) : otherwise;
}

}  // namespace

Reflection reflectionOf(HeldShape& shape) {
    Reflection reflection;
    const Properties attributes =
        entriesOf(entriesOf(effectsOf(bagOf(shape)), reflectionEntry), attributesEntry);
    if (!attributes.hasElements()) return reflection;
    reflection.offsetPt = numberIn(attributes, "dist", 0) / emuPerPoint;
    reflection.blurPt = numberIn(attributes, "blurRad", 0) / emuPerPoint;
    reflection.size = numberIn(attributes, "endPos", wholeShare) / wholeShare;
    reflection.transparency = 1 - numberIn(attributes, "stA", wholeShare) / wholeShare;
    return reflection;
}

void setReflection(HeldShape& shape, const Reflection& reflection) {
    const Properties bag = bagOf(shape);
    Properties effects = without(without(effectsOf(bag), reflectionEntry), shadowEntry);
    if (reflection.size > 0) effects = withLast(effects, reflectionForFile(reflection));
    if (effects.hasElements() && shape.get<bool>("Shadow"))
        effects = withFirst(effects, shadowStandIn());
    keepEffects(shape, bag, effects);
}

void shadowWasSwitched(HeldShape& shape, bool on) {
    const Properties bag = bagOf(shape);
    const Properties effects = effectsOf(bag);
    if (!effects.hasElements()) return;
    const Properties others = without(effects, shadowEntry);
    keepEffects(shape, bag,
                on && others.hasElements() ? withFirst(others, shadowStandIn()) : others);
}

}  // namespace libreoffice::powerpoint

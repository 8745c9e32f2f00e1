// What a shape looks like: its outline, its shadow, its reflection.

#include <com/sun/star/awt/XBitmap.hpp>
#include <com/sun/star/drawing/BitmapMode.hpp>
#include <com/sun/star/drawing/EnhancedCustomShapeAdjustmentValue.hpp>
#include <com/sun/star/drawing/FillStyle.hpp>
#include <com/sun/star/drawing/LineStyle.hpp>
#include <com/sun/star/graphic/XGraphic.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "office/failure.h"
#include "office/libreoffice/powerpoint/hidden_step.h"
#include "office/libreoffice/powerpoint/impress_deck.h"
#include "office/libreoffice/powerpoint/impress_shape.h"
#include "office/libreoffice/powerpoint/impress_slide.h"
#include "office/libreoffice/powerpoint/paste.h"
#include "office/libreoffice/units.h"

namespace libreoffice::powerpoint {

namespace {

using Properties = uno::Sequence<css::beans::PropertyValue>;
using Adjustments = uno::Sequence<css::drawing::EnhancedCustomShapeAdjustmentValue>;

constexpr const char* geometryProperty = "CustomShapeGeometry";
constexpr std::string_view loadedPrefix = "ooxml-";

struct OutlineName {
    model::Outline outline;
    /// What LibreOffice calls it: of its own, and as loaded from a PowerPoint file.
    const char* own;
    std::string_view loaded;
};
constexpr std::array<OutlineName, 2> outlines = {{
    {model::Outline::Rectangle, "rectangle", "ooxml-rect"},
    {model::Outline::RoundedRectangle, "round-rectangle", "ooxml-roundRect"},
}};

/// What LibreOffice keeps for the saved file and does not draw.
constexpr const char* bagProperty = "InteropGrabBag";
constexpr const char* effectsEntry = "EffectProperties";
constexpr const char* reflectionEntry = "reflection";
constexpr const char* shadowEntry = "outerShdw";
constexpr const char* attributesEntry = "Attribs";

using office::emuPerPoint;
using office::sharePerPercent;
using office::wholeShare;

template <class Type>
Type entryOf(const Properties& entries, const char* name, Type otherwise = Type()) {
    for (const auto& entry : entries) {
        if (entry.Name.equalsAscii(name)) entry.Value >>= otherwise;
    }
    return otherwise;
}

Properties without(const Properties& entries, const char* name) {
    std::vector<css::beans::PropertyValue> kept;
    for (const auto& entry : entries) {
        if (!entry.Name.equalsAscii(name)) kept.push_back(entry);
    }
    return {kept.data(), static_cast<sal_Int32>(kept.size())};
}

Properties joined(const Properties& first, const Properties& second) {
    std::vector<css::beans::PropertyValue> all(first.begin(), first.end());
    all.insert(all.end(), second.begin(), second.end());
    return {all.data(), static_cast<sal_Int32>(all.size())};
}

std::string typeOf(const Properties& geometry) {
    return fromUno(entryOf<rtl::OUString>(geometry, "Type"));
}

/// What stands for 1 in an adjustment.
double wholeOf(const Properties& geometry) {
    constexpr double ownWhole = 21600;
    return typeOf(geometry).starts_with(loadedPrefix) ? wholeShare : ownWhole;
}

Adjustments adjustmentsOf(const Properties& geometry) {
    return entryOf<Adjustments>(geometry, "AdjustmentValues");
}

Properties geometryOf(model::Outline wanted) {
    const auto* found = std::find_if(outlines.begin(), outlines.end(), [&](const auto& candidate) {
        return candidate.outline == wanted;
    });
    return propertyValues({{"Type", uno::Any(rtl::OUString::createFromAscii(found->own))}});
}

/// Takes over what a picture has beside its picture: names, shadow, effects kept for the file.
void copyLook(const uno::Reference<uno::XInterface>& from,
              const uno::Reference<uno::XInterface>& to) {
    NamedValues(from, {"Description", "InteropGrabBag", "Name", "Shadow", "ShadowBlur",
                       "ShadowColor", "ShadowSizeX", "ShadowSizeY", "ShadowTransparence",
                       "ShadowXDistance", "ShadowYDistance", "Title"})
        .applyTo(to);
}

/// Stands for the shape's shadow: the numbers and the colour are overwritten by those of the
/// shadow's own properties when the file is written, but only where an entry is there to be
/// overwritten.
Properties shadowStandIn() {
    const Properties attributes = propertyValues({{"blurRad", uno::Any(sal_Int32(0))},
                                                  {"dist", uno::Any(sal_Int32(0))},
                                                  {"dir", uno::Any(sal_Int32(0))},
                                                  {"rotWithShape", uno::Any(sal_Int32(0))}});
    return propertyValues({{shadowEntry, uno::Any(propertyValues(
                                             {{attributesEntry, uno::Any(attributes)},
                                              {"RgbClr", uno::Any(sal_Int32(0))},
                                              {"RgbClrTransparency", uno::Any(sal_Int32(0))}}))}});
}

Properties reflectionAttributes(const Properties& effects) {
    return entryOf<Properties>(entryOf<Properties>(effects, reflectionEntry), attributesEntry);
}

double numberIn(const Properties& entries, const char* name, double otherwise) {
    return static_cast<double>(
        entryOf<sal_Int64>(entries, name, static_cast<sal_Int64>(otherwise)));
}

/// A reflection for the file. Blur and transparency stay those of the reflection before.
Properties reflectionForFile(const model::Reflection& reflection, const Properties& before) {
    const auto number = [](double value) {
        return uno::Any(static_cast<sal_Int32>(std::lround(value)));
    };
    constexpr double halfSeen = wholeShare / 2;
    constexpr double fadedOut = 0.003;
    constexpr double downwards = 90 * office::anglePerDegree;
    const Properties attributes =
        propertyValues({{"blurRad", number(numberIn(before, "blurRad", 0))},
                        {"stA", number(numberIn(before, "stA", halfSeen))},
                        {"endA", number(fadedOut * wholeShare)},
                        {"endPos", number(reflection.sizePercent * sharePerPercent)},
                        {"dist", number(reflection.offsetPt * emuPerPoint)},
                        {"dir", number(downwards)},
                        {"sy", number(-wholeShare)},
                        {"algn", uno::Any(rtl::OUString("bl"))},
                        {"rotWithShape", number(0)}});
    return propertyValues(
        {{reflectionEntry, uno::Any(propertyValues({{attributesEntry, uno::Any(attributes)}}))}});
}

Properties bagWith(const Properties& bag, const Properties& effects) {
    const Properties others = without(bag, effectsEntry);
    if (!effects.hasElements()) return others;
    return joined(others, propertyValues({{effectsEntry, uno::Any(effects)}}));
}

}  // namespace

model::Outline ImpressShape::outline() {
    if (!isCustomShape()) return model::Outline::Rectangle;
    const std::string type = typeOf(get<Properties>(geometryProperty));
    const auto* found = std::find_if(outlines.begin(), outlines.end(), [&](const auto& one) {
        return one.own == type || one.loaded == type;
    });
    return found != outlines.end() ? found->outline : model::Outline::Other;
}

void ImpressShape::setOutline(model::Outline wanted) {
    if (outline() == wanted) return;
    if (isCustomShape()) {
        set(geometryProperty, geometryOf(wanted));
    } else if (isPicture()) {
        replacePicture(wanted);
    } else {
        office::refuse("Shape.AutoShapeType",
                       "LibreOffice gives an outline to pictures and drawn shapes only");
    }
}

/// A picture of LibreOffice is always a rectangle. For another outline a shape of that outline,
/// filled with the picture, takes its place on the slide, in the window's selection and in this
/// object.
void ImpressShape::replacePicture(model::Outline wanted) {
    slide_.deck().latePictures().wait();
    const auto depth = get<sal_Int32>("ZOrder");
    const auto graphic = get<uno::Reference<css::graphic::XGraphic>>("Graphic");
    const bool keeps = keepsProportions();
    ImpressDeck& deck = slide_.deck();
    const auto selected = deck.impressWindow().selection();
    const bool wasSelected = std::find(selected.begin(), selected.end(), shape_) != selected.end();

    const HiddenStep hidden(deck);
    NewShape made(slide_, "com.sun.star.drawing.CustomShape");
    ImpressShape filled(made.shape(), slide_);
    filled.shape_->setPosition(shape_->getPosition());
    filled.shape_->setSize(shape_->getSize());
    filled.set(geometryProperty, geometryOf(wanted));
    copyLook(shape_, filled.shape_);
    filled.set({{"FillStyle", uno::Any(css::drawing::FillStyle_BITMAP)},
                {"FillBitmapMode", uno::Any(css::drawing::BitmapMode_STRETCH)},
                {"LineStyle", uno::Any(css::drawing::LineStyle_NONE)},
                // Else the shape would grow to the height of its text, which it hasn't.
                {"TextAutoGrowHeight", uno::Any(false)}});
    filled.set("FillBitmap", as<css::awt::XBitmap>(graphic));
    slide_.page()->remove(shape_);
    deck.hold(shape_);
    shape_ = made.take();
    properties_ = filled.properties_;
    severalProperties_ = filled.severalProperties_;
    text_.clear();
    service_.clear();
    keepsProportions_ = keeps;
    if (wasSelected) deck.impressWindow().select(shape_);
    set("ZOrder", depth);
}

std::optional<double> ImpressShape::adjustment(std::int32_t place) {
    if (!isCustomShape()) return std::nullopt;
    const auto geometry = get<Properties>(geometryProperty);
    const Adjustments adjustments = adjustmentsOf(geometry);
    if (place < 1 || place > adjustments.getLength()) return std::nullopt;
    double value = 0;
    adjustments[place - 1].Value >>= value;
    return value / wholeOf(geometry);
}

bool ImpressShape::setAdjustment(std::int32_t place, double value) {
    if (!isCustomShape()) return false;
    const auto geometry = get<Properties>(geometryProperty);
    Adjustments adjustments = adjustmentsOf(geometry);
    if (place < 1 || place > adjustments.getLength()) return false;
    adjustments.getArray()[place - 1].Value <<=
        static_cast<sal_Int32>(std::lround(value * wholeOf(geometry)));
    set(geometryProperty, joined(without(geometry, "AdjustmentValues"),
                                 propertyValues({{"AdjustmentValues", uno::Any(adjustments)}})));
    return true;
}

/// The sizes of a shadow are per thousand of a percent.
constexpr sal_Int32 sizePerPercent = 1000;

model::Shadow ImpressShape::shadow() {
    const NamedValues values = several({"Shadow", "ShadowBlur", "ShadowColor", "ShadowSizeX",
                                        "ShadowXDistance", "ShadowYDistance"});
    hasShadow_ = values.get<bool>("Shadow");
    const double size = values.get<sal_Int32>("ShadowSizeX", 100 * sizePerPercent);
    return {.isVisible = *hasShadow_,
            .blurPt = pointsOf(values.get<sal_Int32>("ShadowBlur")),
            .sizePercent = size / sizePerPercent,
            .offsetXPt = pointsOf(values.get<sal_Int32>("ShadowXDistance")),
            .offsetYPt = pointsOf(values.get<sal_Int32>("ShadowYDistance")),
            .colour = swapRedAndBlue(values.get<sal_Int32>("ShadowColor"))};
}

void ImpressShape::setShadow(const model::Shadow& shadow) {
    const bool had = hasShadow_ ? *hasShadow_ : get<bool>("Shadow");
    hasShadow_ = shadow.isVisible;
    if (!shadow.isVisible) {
        set("Shadow", false);
    } else {
        const auto size = static_cast<sal_Int32>(std::lround(shadow.sizePercent * sizePerPercent));
        set({{"Shadow", uno::Any(true)},
             {"ShadowBlur", uno::Any(hundredthMmOf(shadow.blurPt))},
             {"ShadowColor", uno::Any(swapRedAndBlue(shadow.colour))},
             {"ShadowSizeX", uno::Any(size)},
             {"ShadowSizeY", uno::Any(size)},
             {"ShadowXDistance", uno::Any(hundredthMmOf(shadow.offsetXPt))},
             {"ShadowYDistance", uno::Any(hundredthMmOf(shadow.offsetYPt))}});
        if (!had) set("ShadowTransparence", sal_Int16(0));
    }
    if (had != shadow.isVisible) shadowWasSwitched(shadow.isVisible);
}

/// Beside effects that are kept for the file, LibreOffice writes a shadow only if one is kept with
/// them, ahead of them.
void ImpressShape::shadowWasSwitched(bool on) {
    const auto bag = get<Properties>(bagProperty);
    const auto effects = entryOf<Properties>(bag, effectsEntry);
    if (!effects.hasElements()) return;
    const Properties others = without(effects, shadowEntry);
    set(bagProperty,
        bagWith(bag, on && others.hasElements() ? joined(shadowStandIn(), others) : others));
}

model::Reflection ImpressShape::reflection() {
    const Properties attributes =
        reflectionAttributes(entryOf<Properties>(get<Properties>(bagProperty), effectsEntry));
    if (!attributes.hasElements()) return {};
    return {.offsetPt = numberIn(attributes, "dist", 0) / emuPerPoint,
            .sizePercent = numberIn(attributes, "endPos", wholeShare) / sharePerPercent};
}

void ImpressShape::setReflection(const model::Reflection& reflection) {
    const auto bag = get<Properties>(bagProperty);
    const auto before = entryOf<Properties>(bag, effectsEntry);
    Properties effects = without(without(before, reflectionEntry), shadowEntry);
    if (reflection.sizePercent > 0)
        effects = joined(effects, reflectionForFile(reflection, reflectionAttributes(before)));
    if (effects.hasElements() && get<bool>("Shadow")) effects = joined(shadowStandIn(), effects);
    set(bagProperty, bagWith(bag, effects));
}

}  // namespace libreoffice::powerpoint

#include "office/libreoffice/powerpoint/shadow_format.h"

#include <cmath>

#include "office/libreoffice/powerpoint/color_format.h"
#include "office/libreoffice/powerpoint/shape_effects.h"
#include "office/libreoffice/units.h"

namespace libreoffice::powerpoint {

namespace {

using office::CallArguments;
using office::Value;

/// The shadow that PowerPoint gives a shape whose shadow is merely made visible.
constexpr double plainOffsetPt = 2;
constexpr sal_Int32 plainColour = 0x808080;
/// The sizes of a shadow are per thousand of a percent.
constexpr sal_Int32 sizePerPercent = 1000;

}  // namespace

const office::MemberTable<ShadowFormat>& ShadowFormat::members() {
    const auto length = [](const char* name) {
        return [name](ShadowFormat& self, const CallArguments&) -> Value {
            return pointsOf(self.shape().get<sal_Int32>(name));
        };
    };
    const auto setLength = [](const char* name) {
        return [name](ShadowFormat& self, const CallArguments&, const Value& points) {
            self.switchOnBehind();
            self.shape().set(name, hundredthMmOf(points.toDouble()));
        };
    };
    static const auto table =
        office::MemberTable<ShadowFormat>("ShadowFormat")
            .property("Visible", &ShadowFormat::visible, &ShadowFormat::setVisible)
            .property("Blur", length("ShadowBlur"), setLength("ShadowBlur"))
            .property("OffsetX", length("ShadowXDistance"), setLength("ShadowXDistance"))
            .property("OffsetY", length("ShadowYDistance"), setLength("ShadowYDistance"))
            .property("Size", &ShadowFormat::size, &ShadowFormat::setSize)
            .property("Transparency", &ShadowFormat::transparency, &ShadowFormat::setTransparency)
            .property("ForeColor", &ShadowFormat::foreColor);
    return table;
}

Value ShadowFormat::visible() {
    return triState(shape().get<bool>("Shadow"));
}

void ShadowFormat::setVisible(const Value& on) {
    const bool wanted = on.toBool();
    if (wanted == shape().get<bool>("Shadow")) return;
    if (wanted) {
        switchOn(plainOffsetPt);
    } else {
        shape().set("Shadow", false);
        shadowWasSwitched(shape(), false);
    }
}

Value ShadowFormat::size() {
    return shape().get<sal_Int32>("ShadowSizeX", 100 * sizePerPercent) / sizePerPercent;
}

void ShadowFormat::setSize(const Value& percent) {
    switchOnBehind();
    const auto size = static_cast<sal_Int32>(std::lround(percent.toDouble() * sizePerPercent));
    shape().set({{"ShadowSizeX", uno::Any(size)}, {"ShadowSizeY", uno::Any(size)}});
}

Value ShadowFormat::transparency() {
    return shape().get<sal_Int16>("ShadowTransparence") / 100.0;
}

void ShadowFormat::setTransparency(const Value& share) {
    switchOnBehind();
    shape().set("ShadowTransparence", static_cast<sal_Int16>(std::lround(share.toDouble() * 100)));
}

Value ShadowFormat::foreColor() {
    return makeObject<ColorFormat>(
        deskPtr(), whole().document,
        [whole = whole()] { return swapRedAndBlue(whole.shape->get<sal_Int32>("ShadowColor")); },
        [whole = whole()](std::int32_t colour) { ShadowFormat(whole).setColour(colour); });
}

void ShadowFormat::setColour(std::int32_t colour) {
    switchOnBehind();
    shape().set("ShadowColor", swapRedAndBlue(colour));
}

void ShadowFormat::switchOn(double offsetPt) {
    const sal_Int32 offset = hundredthMmOf(offsetPt);
    shape().set({{"Shadow", uno::Any(true)},
                 {"ShadowXDistance", uno::Any(offset)},
                 {"ShadowYDistance", uno::Any(offset)},
                 {"ShadowColor", uno::Any(plainColour)},
                 {"ShadowBlur", uno::Any(sal_Int32(0))},
                 {"ShadowTransparence", uno::Any(sal_Int16(0))}});
    shadowWasSwitched(shape(), true);
}

void ShadowFormat::switchOnBehind() {
    if (!shape().get<bool>("Shadow")) switchOn(0);
}

}  // namespace libreoffice::powerpoint

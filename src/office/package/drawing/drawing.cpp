#include "office/package/drawing/drawing.h"

#include <fmt/format.h>

#include <cmath>
#include <cstdlib>

#include "office/package/xml.h"

namespace office::package {

namespace {

/// 0xBBGGRR from and to 0xRRGGBB.
std::int32_t swapped(std::int32_t colour) {
    return (colour & 0xFF) << 16 | (colour & 0xFF00) | (colour >> 16 & 0xFF);
}

}  // namespace

long long emuOf(double points) {
    return std::llround(points * emuPerPoint);
}

pugi::xml_node effectFor(pugi::xml_node looks, std::string_view name) {
    constexpr std::string_view order =
        "blur fillOverlay glow innerShdw outerShdw prstShdw reflection softEdge";
    looks.remove_child(childNamed(looks, ns::drawing, "effectDag"));
    return childInOrder(childInOrder(looks, ns::drawing, "effectLst", looksOrder), ns::drawing,
                        name, order);
}

std::string hexColour(std::int32_t colour) {
    return fmt::format("{:06X}", swapped(colour));
}

std::int32_t colourIn(pugi::xml_node holder) {
    const auto colour = childNamed(holder, ns::drawing, "srgbClr");
    return swapped(static_cast<std::int32_t>(
        std::strtol(colour.attribute("val").as_string("0"), nullptr, 16)));
}

std::string colourMarkup(std::int32_t colour) {
    return fmt::format("<a:srgbClr val=\"{}\"/>", hexColour(colour));
}

}  // namespace office::package

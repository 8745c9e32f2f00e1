#include "office/package/drawing/drawing.h"

#include <fmt/format.h>

#include <cmath>

#include "office/package/xml.h"

namespace office::package {

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

std::int32_t colourIn(pugi::xml_node holder) {
    return colourOfHex(childNamed(holder, ns::drawing, "srgbClr").attribute("val").as_string());
}

std::string colourMarkup(std::int32_t colour) {
    return fmt::format("<a:srgbClr val=\"{}\"/>", hexColour(colour));
}

}  // namespace office::package

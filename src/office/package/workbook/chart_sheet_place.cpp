#include "office/package/workbook/chart_sheet_place.h"

#include <string_view>

#include "office/package/xml.h"

namespace office::package {

namespace {

/// That of a chart which fills a landscape page.
constexpr int pageWidthEmu = 9308969;
constexpr int pageHeightEmu = 6078325;

}  // namespace

bool placeOnPage(pugi::xml_node drawing) {
    bool isChanged = false;
    const auto change = [&](pugi::xml_attribute side, int value) {
        side.set_value(value);
        isChanged = true;
    };
    for (const pugi::xml_node anchor : drawing.children()) {
        for (const pugi::xml_node place : anchor.children()) {
            const std::string_view name = localName(place);
            if (name == "pos") {
                for (const pugi::xml_attribute side : place.attributes())
                    if (side.as_llong() < 0) change(side, 0);
            } else if (name == "ext" && (place.attribute("cx").as_llong() <= 0 ||
                                         place.attribute("cy").as_llong() <= 0)) {
                change(place.attribute("cx"), pageWidthEmu);
                change(place.attribute("cy"), pageHeightEmu);
            }
        }
    }
    return isChanged;
}

}  // namespace office::package

#include "office/package/document/page_section.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "office/package/document/paragraph.h"
#include "office/text.h"

namespace office::package {

namespace {

constexpr std::string_view sectionOrder =
    "headerReference footerReference footnotePr endnotePr type pgSz pgMar paperSrc pgBorders "
    "lnNumType pgNumType cols formProt vAlign noEndnote titlePg textDirection bidi rtlGutter "
    "docGrid printerSettings sectPrChange";

/// What a section has that says nothing of its page.
constexpr double plainWidth = 612;
constexpr double plainHeight = 792;
constexpr double plainMargin = 72;

/// No page of Word is longer.
constexpr double longest = 1584;

double lengthIn(pugi::xml_node node, const char* name, double plain) {
    const auto found = numberOf(wordValue(node, name));
    if (!found || !std::isfinite(*found)) return plain;
    return std::clamp(*found / twipsPerPoint, -longest, longest);
}

}  // namespace

bool beginsOnNewPage(pugi::xml_node section) {
    const std::string_view type = wordValue(childNamed(section, ns::word, "type"));
    return type != "continuous" && type != "nextColumn";
}

word::Page pageOf(pugi::xml_node section) {
    const auto size = childNamed(section, ns::word, "pgSz");
    const auto margins = childNamed(section, ns::word, "pgMar");
    // Below 0 it holds whatever stands in the header.
    const auto side = [&](const char* name, double plain) {
        const double length = lengthIn(size, name, plain);
        return length > 0 ? length : plain;
    };
    const auto margin = [&](const char* name) {
        return std::abs(lengthIn(margins, name, plainMargin));
    };
    word::Page page{.width = side("w", plainWidth),
                    .height = side("h", plainHeight),
                    .leftMargin = margin("left") + lengthIn(margins, "gutter", 0),
                    .rightMargin = margin("right"),
                    .topMargin = margin("top"),
                    .bottomMargin = margin("bottom")};
    return page;
}

double columnWidthOf(pugi::xml_node section, double width) {
    constexpr double plainGap = 36;
    // Word has no more.
    constexpr double most = 45;
    const auto columns = childNamed(section, ns::word, "cols");
    double narrowest = width;
    for (const pugi::xml_node column : columns.children()) {
        if (isNamed(column, ns::word, "col"))
            narrowest = std::min(narrowest, lengthIn(column, "w", width));
    }
    if (narrowest < width) return std::max(narrowest, 0.0);
    const double count = std::clamp(numberOf(wordValue(columns, "num")).value_or(1), 1.0, most);
    return std::max((width - (count - 1) * lengthIn(columns, "space", plainGap)) / count, 0.0);
}

void setPageOf(pugi::xml_node section, const word::Page& page) {
    const bool isLandscape = page.width > page.height;
    const auto size = childInOrder(section, ns::word, "pgSz", sectionOrder);
    setWordValue(size, "w", twipsOf(page.width));
    setWordValue(size, "h", twipsOf(page.height));
    if (isLandscape || !wordValue(size, "orient").empty())
        setWordValue(size, "orient", isLandscape ? "landscape" : "portrait");
    const bool isNew = !childNamed(section, ns::word, "pgMar");
    const auto margins = childInOrder(section, ns::word, "pgMar", sectionOrder);
    const auto set = [&](const char* side, double length) {
        setWordValue(margins, side, twipsOf(length));
    };
    set("top", page.topMargin);
    set("right", page.rightMargin);
    set("bottom", page.bottomMargin);
    set("left", page.leftMargin - lengthIn(margins, "gutter", 0));
    if (!isNew) return;
    for (const char* const side : {"header", "footer"}) set(side, plainMargin / 2);
    set("gutter", 0);
}

}  // namespace office::package

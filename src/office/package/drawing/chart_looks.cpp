#include "office/package/drawing/chart_looks.h"

#include <fmt/format.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "office/package/drawing/chart_order.h"
#include "office/package/drawing/drawing.h"

namespace office::package {

namespace {

/// Elements whose line is drawn whether or not they say how.
constexpr std::string_view lined =
    "catAx dateAx valAx serAx majorGridlines minorGridlines dropLines hiLowLines serLines "
    "leaderLines errBars trendline";
/// The groups whose series are lines.
constexpr std::string_view lineGroups = "lineChart scatterChart radarChart";
constexpr std::string_view fills = "noFill solidFill gradFill blipFill pattFill grpFill";

bool isOneOf(pugi::xml_node node, std::string_view space, std::string_view names) {
    return isListed(names, localName(node)) && isNamed(node, space, localName(node));
}

/// The number of the chart's style, by which programs dress what it leaves out.
int styleNumberOf(pugi::xml_node chartSpace) {
    constexpr int plainStyle = 2;
    auto style = childNamed(chartSpace, ns::chart, "style");
    if (!style) {
        const auto choice = childNamed(chartSpace, ns::compatibility, "AlternateContent");
        style = childNamed(childNamed(choice, ns::compatibility, "Fallback"), ns::chart, "style");
    }
    return style.attribute("val").as_int(plainStyle);
}

/// How much thicker than the theme's finest line a series is drawn.
int seriesFactor(int style) {
    if (style <= 8) return 3;
    return style >= 25 && style <= 32 ? 7 : 5;
}

void writeWidth(pugi::xml_node element, int width) {
    const auto looks = chartChild(element, "spPr");
    auto line = childInOrder(looks, ns::drawing, "ln", looksOrder);
    if (!line.attribute("w") && !childNamed(line, ns::drawing, "noFill"))
        line.append_attribute("w").set_value(width);
}

/// Whether the series have the theme's accents as they are, one each: more than those are told
/// apart by shades.
bool cyclesAccents(pugi::xml_node area, int style) {
    constexpr int lastOfThem = 26;
    constexpr unsigned accents = 6;
    if (style % 8 != 2 || style > lastOfThem) return false;
    for (const pugi::xml_node group : area.children()) {
        for (const pugi::xml_node series : childrenNamed(group, ns::chart, "ser")) {
            const auto place = childNamed(series, ns::chart, "idx").attribute("val");
            if (place.as_uint(accents) >= accents) return false;
        }
    }
    return true;
}

/// LibreOffice takes the colours of a chart's own theme, but the lines of the presentation's, which
/// may have none.
void writeAccent(pugi::xml_node series, const ThinLine& thinLine) {
    const auto varies = childNamed(series.parent(), ns::chart, "varyColors");
    if (!thinLine.changes || varies.attribute("val").as_bool()) return;
    auto line = childNamed(childNamed(series, ns::chart, "spPr"), ns::drawing, "ln");
    if (line.find_child([](const auto& child) { return isOneOf(child, ns::drawing, fills); }))
        return;
    auto fill =
        childInOrder(line, ns::drawing, "solidFill",
                     "solidFill prstDash custDash round bevel miter headEnd tailEnd extLst");
    auto colour = childInOrder(fill, ns::drawing, "schemeClr", "schemeClr");
    const unsigned place = childNamed(series, ns::chart, "idx").attribute("val").as_uint();
    colour.append_attribute("val").set_value(fmt::format("accent{}", place + 1).c_str());
    for (const auto& [name, value] : *thinLine.changes)
        childInOrder(colour, ns::drawing, name, name)
            .append_attribute("val")
            .set_value(value.c_str());
}

/// Of the styles with a light ground; the others are seldom and dressed by the program.
void writeFrame(pugi::xml_node chartSpace, int thinLine) {
    auto looks = chartChild(chartSpace, "spPr");
    const auto has = [&](std::string_view names) {
        return looks.find_child(
            [&](const pugi::xml_node& child) { return isOneOf(child, ns::drawing, names); });
    };
    const auto light = [](pugi::xml_node holder, const char* name) {
        auto colour = childInOrder(childInOrder(holder, ns::drawing, "solidFill", looksOrder),
                                   ns::drawing, "schemeClr", "schemeClr");
        colour.append_attribute("val").set_value(name);
        return colour;
    };
    if (!has(fills)) light(looks, "bg1");
    if (has("ln")) return;
    auto line = childInOrder(looks, ns::drawing, "ln", looksOrder);
    if (thinLine > 0) line.append_attribute("w").set_value(thinLine);
    auto grey = light(line, "tx1");
    for (const auto& [name, value] : {std::pair{"lumMod", 15'000}, {"lumOff", 85'000}})
        childInOrder(grey, ns::drawing, name, name).append_attribute("val").set_value(value);
}

constexpr std::string_view plainFormat = "General";

std::vector<pugi::xml_node> groupsAlong(pugi::xml_node axis) {
    const std::string id = childNamed(axis, ns::chart, "axId").attribute("val").value();
    std::vector<pugi::xml_node> groups;
    for (const pugi::xml_node group : axis.parent().children()) {
        const auto ids = childrenNamed(group, ns::chart, "axId");
        if (std::any_of(ids.begin(), ids.end(),
                        [&](const auto& one) { return one.attribute("val").value() == id; }))
            groups.push_back(group);
    }
    return groups;
}

pugi::xml_node numbersOf(pugi::xml_node series, const char* role) {
    const auto reference = childNamed(childNamed(series, ns::chart, role), ns::chart, "numRef");
    return childNamed(reference, ns::chart, "numCache");
}

/// Days that are stored as plain numbers are shown as the axis says.
void writeDates(pugi::xml_node axis, const std::vector<pugi::xml_node>& groups) {
    const auto wanted = childNamed(axis, ns::chart, "numFmt").attribute("formatCode");
    const bool isPlain = !wanted || wanted.value() == plainFormat;
    if (isPlain && !isNamed(axis, ns::chart, "dateAx")) return;
    for (const pugi::xml_node group : groups) {
        for (const pugi::xml_node series : childrenNamed(group, ns::chart, "ser")) {
            const auto cache = numbersOf(series, "cat");
            if (!cache) continue;
            auto format = chartChild(cache, "formatCode");
            if (format.text().get() == plainFormat || format.text().empty())
                format.text().set(isPlain ? "yyyy\\-mm\\-dd" : wanted.value());
        }
    }
}

/// What an axis takes from the cells of its first series. LibreOffice goes by what stands there.
void linkFormat(pugi::xml_node axis, pugi::xml_node group) {
    auto format = childNamed(axis, ns::chart, "numFmt");
    if (!format.attribute("sourceLinked").as_bool()) return;
    const bool isOfValues = isNamed(axis, ns::chart, "valAx");
    // Shares are shown as such, whatever they are of.
    const auto grouping = childNamed(group, ns::chart, "grouping").attribute("val");
    if (isOfValues && grouping.value() == std::string_view("percentStacked")) return;
    const char* role = isOfValues ? "val" : "cat";
    if (isOneOf(group, ns::chart, "scatterChart bubbleChart")) {
        const std::string first = childNamed(group, ns::chart, "axId").attribute("val").value();
        const bool isFirst = childNamed(axis, ns::chart, "axId").attribute("val").value() == first;
        role = isFirst ? "xVal" : "yVal";
    }
    const auto series = childNamed(group, ns::chart, "ser");
    const char* const code =
        childNamed(numbersOf(series, role), ns::chart, "formatCode").text().get();
    if (*code != '\0' && code != plainFormat) attributeFor(format, "formatCode").set_value(code);
}

}  // namespace

void writeLooks(pugi::xml_node chartSpace, const ThinLine& thinLine) {
    constexpr int lastLightStyle = 32;
    const int style = styleNumberOf(chartSpace);
    if (style <= lastLightStyle) writeFrame(chartSpace, thinLine.width);
    if (thinLine.width <= 0) return;
    const auto area = childNamed(childNamed(chartSpace, ns::chart, "chart"), ns::chart, "plotArea");
    const bool hasAccents = cyclesAccents(area, style);
    std::vector<pugi::xml_node> open = {area};
    while (!open.empty()) {
        const pugi::xml_node node = open.back();
        open.pop_back();
        for (const pugi::xml_node child : node.children()) {
            if (child.type() != pugi::node_element) continue;
            if (isNamed(child, ns::chart, "ser") && isOneOf(node, ns::chart, lineGroups)) {
                writeWidth(child, thinLine.width * seriesFactor(style));
                if (hasAccents) writeAccent(child, thinLine);
            }
            if (isOneOf(child, ns::chart, lined)) writeWidth(child, thinLine.width);
            // Deeper there are values and texts.
            if (isNamed(node, ns::chart, "plotArea") || isNamed(child, ns::chart, "ser") ||
                isNamed(child, ns::chart, "dLbls"))
                open.push_back(child);
        }
    }
}

void writeAxisFormats(pugi::xml_node chartSpace) {
    // Far more than any chart has: for each of them all series are looked through.
    constexpr int mostAxes = 50;
    const auto area = childNamed(childNamed(chartSpace, ns::chart, "chart"), ns::chart, "plotArea");
    int axes = 0;
    for (const pugi::xml_node axis : area.children()) {
        if (!isOneOf(axis, ns::chart, "catAx dateAx valAx")) continue;
        if (++axes > mostAxes) return;
        const auto groups = groupsAlong(axis);
        if (!isNamed(axis, ns::chart, "valAx")) writeDates(axis, groups);
        if (!groups.empty()) linkFormat(axis, groups.front());
    }
}

ThinLine thinLineOf(const Xml& theme) {
    const auto elements = childNamed(theme.root(), ns::drawing, "themeElements");
    const auto formats = childNamed(elements, ns::drawing, "fmtScheme");
    const auto lines = childNamed(formats, ns::drawing, "lnStyleLst");
    const auto line = childNamed(lines, ns::drawing, "ln");
    ThinLine thin{.width = std::max(line.attribute("w").as_int(), 0)};
    const auto colour =
        childNamed(childNamed(line, ns::drawing, "solidFill"), ns::drawing, "schemeClr");
    if (colour.attribute("val").value() != std::string_view("phClr")) return thin;
    std::vector<std::pair<std::string, std::string>> changes;
    for (const pugi::xml_node change : colour.children()) {
        if (change.type() != pugi::node_element) continue;
        const std::string name(localName(change));
        const auto isSame = [&](const auto& known) { return known.first == name; };
        if (!isListed("tint shade satMod satOff lumMod lumOff", name) || !change.attribute("val") ||
            std::any_of(changes.begin(), changes.end(), isSame))
            return thin;
        changes.emplace_back(name, change.attribute("val").value());
    }
    thin.changes = std::move(changes);
    return thin;
}

}  // namespace office::package

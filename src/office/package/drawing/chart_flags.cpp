#include "office/package/drawing/chart_flags.h"

#include <algorithm>
#include <array>
#include <vector>

#include "office/package/drawing/chart_order.h"
#include "office/package/xml.h"

namespace office::package {

namespace {

struct Flag {
    /// The elements that have it, with those around them where that matters: "ser" of a
    /// "lineChart".
    std::string_view around;
    std::string_view parents;
    std::string_view name;
    const char* standard;
    const char* excel2007;
};

constexpr const char* on = "1";
constexpr const char* off = "0";
constexpr std::string_view any;

constexpr auto flags = std::to_array<Flag>({
    {any, "chartSpace", "roundedCorners", on, off},
    {any, "chart", "autoTitleDeleted", on, off},
    {any, "chart", "plotVisOnly", on, off},
    {any, "chart", "dispBlanksAs", "zero", "gap"},
    {any, "chart", "showDLblsOverMax", on, off},
    {any, "title legend", "overlay", off, off},
    {any, "view3D", "rAngAx", on, off},
    {any, "catAx dateAx valAx serAx", "delete", off, off},
    {any, "catAx dateAx valAx serAx", "majorTickMark", "cross", "out"},
    {any, "catAx dateAx valAx serAx", "minorTickMark", "cross", "none"},
    {any, "catAx dateAx", "auto", on, off},
    {any, "catAx", "noMultiLvlLbl", on, off},
    {any, "barChart bar3DChart", "grouping", "clustered", "standard"},
    {any,
     "barChart bar3DChart lineChart line3DChart areaChart area3DChart radarChart scatterChart "
     "bubbleChart",
     "varyColors", off, off},
    {any, "lineChart", "marker", on, off},
    {any, "pieChart pie3DChart doughnutChart ofPieChart", "varyColors", on, off},
    {any, "bubbleChart", "bubble3D", on, off},
    {any, "bubbleChart", "showNegBubbles", on, off},
    {any, "surfaceChart surface3DChart", "wireframe", on, off},
    {"barChart bar3DChart bubbleChart", "ser", "invertIfNegative", on, off},
    {"bubbleChart", "ser", "bubble3D", on, off},
    {"lineChart line3DChart stockChart scatterChart", "ser", "smooth", on, off},
    {any, "dPt", "invertIfNegative", on, off},
    {any, "errBars", "noEndCap", on, off},
    {any, "trendline", "dispRSqr", on, off},
    {any, "trendline", "dispEq", on, off},
    {any, "pictureOptions", "applyToFront", on, off},
    {any, "pictureOptions", "applyToSides", on, off},
    {any, "pictureOptions", "applyToEnd", on, off},
    {any, "dLbls", "showLeaderLines", on, off},
});

/// What a label shows.
constexpr std::array<const char*, 6> labelFlags = {
    "showLegendKey", "showVal", "showCatName", "showSerName", "showPercent", "showBubbleSize"};

void write(pugi::xml_node parent, std::string_view name, const char* value) {
    if (childCalled(parent, name)) return;
    chartChild(parent, name).append_attribute("val").set_value(value);
}

bool hasAnyFlag(pugi::xml_node labels) {
    return std::any_of(labelFlags.begin(), labelFlags.end(),
                       [&](const char* name) { return childCalled(labels, name); });
}

/// The flags of all labels of a series, which have been written out by now, stand behind those of
/// single points, which may be many.
pugi::xml_node lastOf(pugi::xml_node parent, std::string_view name) {
    auto child = parent.last_child();
    while (child && localName(child) != name) child = child.previous_sibling();
    return child;
}

/// A label of one point that says nothing shows what those of its series show.
void writeLabelFlags(pugi::xml_node labels, FlagDefaults defaults) {
    if (childCalled(labels, "delete")) return;
    const bool isLikeOthers = defaults == FlagDefaults::Excel2007 && localName(labels) == "dLbl" &&
                              !hasAnyFlag(labels) && !childCalled(labels, "dLblPos") &&
                              !childCalled(labels, "separator");
    for (const char* const name : labelFlags) {
        const auto common = isLikeOthers ? lastOf(labels.parent(), name) : pugi::xml_node();
        const char* const plain = defaults == FlagDefaults::Excel2007 ? off : on;
        write(labels, name, common ? common.attribute("val").as_string(on) : plain);
    }
}

/// Elements that hold no flags, and much else.
bool isPassedOver(std::string_view name) {
    return isListed("numCache strCache multiLvlStrCache spPr txPr rich extLst", name);
}

/// A chart in depth is seen from somewhere, also one that doesn't say from where.
void writeView(pugi::xml_node chart) {
    const auto isDeep = [](const pugi::xml_node& group) {
        const std::string_view name = localName(group);
        return name.ends_with("3DChart") || name == "surfaceChart";
    };
    if (childCalled(chart, "plotArea").find_child(isDeep)) chartChild(chart, "view3D");
}

void writeOwnFlags(pugi::xml_node node, FlagDefaults defaults) {
    const std::string_view name = localName(node);
    if (name == "chart") writeView(node);
    if (name == "dLbls" || name == "dLbl") writeLabelFlags(node, defaults);
    if (name == "dLbls" && childCalled(node, "delete")) return;
    for (const Flag& flag : flags) {
        if (!isListed(flag.parents, name)) continue;
        if (!flag.around.empty() && !isListed(flag.around, localName(node.parent()))) continue;
        write(node, flag.name,
              defaults == FlagDefaults::Excel2007 ? flag.excel2007 : flag.standard);
    }
}

}  // namespace

void writeFlags(pugi::xml_node chartSpace, FlagDefaults defaults) {
    std::vector<pugi::xml_node> open = {chartSpace};
    while (!open.empty()) {
        const pugi::xml_node node = open.back();
        open.pop_back();
        writeOwnFlags(node, defaults);
        for (const pugi::xml_node child : node.children()) {
            if (child.type() == pugi::node_element && !isPassedOver(localName(child)))
                open.push_back(child);
        }
    }
}

}  // namespace office::package

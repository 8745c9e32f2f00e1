#include "office/package/drawing/chart_parts.h"

#include <fmt/format.h>

#include <array>
#include <utility>

#include "office/package/drawing/chart_memory.h"
#include "office/package/drawing/chart_order.h"
#include "office/package/part_name.h"
#include "office/text.h"

namespace office::package {

namespace {

constexpr std::string_view chartType =
    "application/vnd.openxmlformats-officedocument.drawingml.chart+xml";
constexpr std::string_view themeType =
    "application/vnd.openxmlformats-officedocument.themeOverride+xml";

constexpr const char* emptyTheme =
    R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>)"
    "\n"
    R"(<a:themeOverride xmlns:a="http://schemas.openxmlformats.org/drawingml/2006/main")"
    R"( xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships"/>)";

/// The colours of a theme by the names that charts know them by.
constexpr std::array<std::pair<const char*, const char*>, 12> plainColours = {{
    {"bg1", "lt1"},
    {"tx1", "dk1"},
    {"bg2", "lt2"},
    {"tx2", "dk2"},
    {"accent1", "accent1"},
    {"accent2", "accent2"},
    {"accent3", "accent3"},
    {"accent4", "accent4"},
    {"accent5", "accent5"},
    {"accent6", "accent6"},
    {"hlink", "hlink"},
    {"folHlink", "folHlink"},
}};

/// Programs tell by these properties what the file was written by.
FlagDefaults defaultsOf(Package& book) {
    try {
        const std::string part = book.partOfType("/", "extended-properties");
        if (part.empty()) return FlagDefaults::Standard;
        const Xml properties(book.read(part), part);
        const std::string writer = childCalled(properties.root(), "Application").text().get();
        const std::string version = childCalled(properties.root(), "AppVersion").text().get();
        return lowerCase(writer).starts_with("microsoft") && version.starts_with("12.")
                   ? FlagDefaults::Excel2007
                   : FlagDefaults::Standard;
    } catch (const PackageError&) {
        // Without the properties, too, a program goes by the standard.
        return FlagDefaults::Standard;
    }
}

std::string overrideOf(const Xml& theme) {
    const Xml made(emptyTheme, "theme");
    const auto elements = childNamed(theme.root(), ns::drawing, "themeElements");
    // Under the theme's own prefixes.
    for (const pugi::xml_node around : {elements, theme.root()}) {
        for (const pugi::xml_attribute attribute : around.attributes()) {
            if (attribute.value() == ns::drawing && !made.root().attribute(attribute.name()))
                made.root().append_copy(attribute);
        }
    }
    for (const char* const name : {"clrScheme", "fontScheme", "fmtScheme"}) {
        if (const auto scheme = childNamed(elements, ns::drawing, name)) adopt(made.root(), scheme);
    }
    return made.bytes();
}

/// The name without its number, and its ending: "/ppt/charts/style".
std::string stemOf(const std::string& part) {
    const std::string name = part.substr(part.rfind('/') + 1);
    const auto end = name.find_first_not_of("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ");
    return name.substr(0, end);
}

/// Says by a relationship where the data is.
void connect(pugi::xml_node chartSpace, const std::string& relationship) {
    auto external = chartChild(chartSpace, "externalData");
    external.append_attribute("xmlns:r").set_value(ns::relationships.data());
    external.append_attribute("r:id").set_value(relationship.c_str());
    chartChild(external, "autoUpdate").append_attribute("val").set_value("0");
}

}  // namespace

ChartParts::Origin& ChartParts::originOf(const WorkbookFilePtr& book) {
    if (const auto known = origins_.find(book); known != origins_.end()) return known->second;
    Origin origin(*book);
    origin.defaults = defaultsOf(book->package());
    if (const std::string& bytes = themeOf(*book); !bytes.empty()) {
        const Xml theme(bytes, "theme");
        origin.theme = overrideOf(theme);
        origin.thinLine = thinLineOf(theme);
    }
    return origins_.emplace(book, std::move(origin)).first->second;
}

std::string ChartParts::add(SourceChart chart, const Copied& copied, const std::string& link) {
    WorkbookFile& book = *chart.book;
    Origin& origin = originOf(chart.book);
    std::vector<Luggage> luggage = pack(book.package(), origin, chart.part, Holder::Chart);
    const bool needsCopy = link.empty() && origin.copy.empty();
    std::string copy = needsCopy ? book.bytes() : std::string();
    auto root = chart.xml->root();
    writeFlags(root, origin.defaults);
    writeLooks(root, origin.thinLine);
    rememberCells(*chart.xml, copied, [&](const auto& sheet, auto row, auto column) {
        return origin.formats.codeAt(sheet, row, column);
    });
    writeAxisFormats(root);
    // From here on nothing can be missing any more.
    std::string part = package_.freeName(folder_ + "/charts/chart", ".xml");
    package_.add(part, chartType, {});
    unpack(std::move(luggage), origin, part, *chart.xml);
    overrideTheme(origin, part, *chart.xml);
    Relationships& relationships = package_.relationshipsOf(part);
    connect(root, link.empty()
                      ? relationships.add("package", addCopy(book, std::move(copy), origin))
                      : relationships.addExternal("oleObject", link));
    package_.replace(part, chart.xml->bytes());
    return part;
}

std::vector<ChartParts::Luggage> ChartParts::pack(Package& book, const Origin& origin,
                                                  const std::string& source, Holder holder) {
    std::vector<Luggage> luggage;
    for (Companion& one : companionsOf(book, source, holder)) {
        Luggage& piece = luggage.emplace_back(Luggage{std::move(one), {}, {}, {}});
        const std::string& part = piece.companion.part;
        const bool isPicture = piece.companion.kind == Companion::Kind::Picture;
        if (piece.companion.kind == Companion::Kind::Address) continue;
        piece.type = book.contentTypeOf(part);
        if (!isPicture || !origin.pictures.contains(partKey(part))) piece.bytes = book.read(part);
        if (piece.companion.kind != Companion::Kind::Markup) continue;
        piece.more = pack(book, origin, part, Holder::Markup);
        static_cast<void>(Xml(piece.bytes, part));
    }
    return luggage;
}

void ChartParts::unpack(std::vector<Luggage> luggage, Origin& origin, const std::string& part,
                        const Xml& xml) {
    Relationships& relationships = package_.relationshipsOf(part);
    std::map<std::string, std::string> ids;
    for (Luggage& one : luggage) {
        const auto [id, type, target, isExternal] = one.companion.relationship;
        ids[id] = one.companion.kind == Companion::Kind::Address
                      ? relationships.addExternal(type, target)
                      : relationships.add(type, add(std::move(one), origin));
    }
    for (pugi::xml_attribute id : relationshipIdsIn(xml)) {
        if (const auto found = ids.find(id.value()); found != ids.end())
            id.set_value(found->second.c_str());
    }
}

std::string ChartParts::add(Luggage one, Origin& origin) {
    const auto& [kind, relationship, source] = one.companion;
    if (kind == Companion::Kind::Picture) {
        std::string& taken = origin.pictures[partKey(source)];
        if (taken.empty())
            taken = package_.addMedia(folder_ + "/media/image", "." + extensionOf(source), one.type,
                                      std::move(one.bytes));
        return taken;
    }
    const bool isShapes = relationship.type.ends_with("/chartUserShapes");
    const char* const subfolder = kind == Companion::Kind::Style ? "charts"
                                  : isShapes                     ? "drawings"
                                                                 : "theme";
    std::string part =
        package_.freeName(fmt::format("{}/{}/{}", folder_, subfolder, stemOf(source)), ".xml");
    package_.add(part, one.type, one.bytes);
    if (kind == Companion::Kind::Markup) {
        const Xml xml(one.bytes, source);
        unpack(std::move(one.more), origin, part, xml);
        package_.replace(part, xml.bytes());
    }
    return part;
}

/// Colours that the chart names by their place in the theme stay those of its workbook.
void ChartParts::overrideTheme(const Origin& origin, const std::string& part, const Xml& xml) {
    Relationships& relationships = package_.relationshipsOf(part);
    if (relationships.ofType("themeOverride") == nullptr) {
        if (origin.theme.empty()) return;
        const std::string theme = package_.freeName(folder_ + "/theme/themeOverride", ".xml");
        package_.add(theme, themeType, origin.theme);
        relationships.add("themeOverride", theme);
    }
    if (childNamed(xml.root(), ns::chart, "clrMapOvr")) return;
    auto colours = chartChild(xml.root(), "clrMapOvr");
    for (const auto& [name, value] : plainColours) colours.append_attribute(name).set_value(value);
}

/// PowerPoint takes no presentation in which two charts lead to one part.
std::string ChartParts::addCopy(const WorkbookFile& book, std::string bytes, Origin& origin) {
    const char* const stem = book.hasMacros()
                                 ? "/embeddings/Microsoft_Excel_Macro-Enabled_Worksheet"
                                 : "/embeddings/Microsoft_Excel_Worksheet";
    const WorkbookFormat& format = workbookFormat(book.hasMacros());
    std::string part = package_.freeName(folder_ + stem, format.ending);
    if (origin.copy.empty()) {
        package_.add(part, format.type, std::move(bytes), Storage::Stored);
        origin.copy = part;
    } else {
        package_.addCopy(part, origin.copy);
    }
    return part;
}

}  // namespace office::package

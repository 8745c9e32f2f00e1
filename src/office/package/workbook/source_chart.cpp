#include "office/package/workbook/source_chart.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "office/package/part_name.h"

namespace office::package {

namespace {

/// By the ends of their addresses: the standard's transitional and strict ones differ before.
struct CompanionType {
    std::string_view ending;
    Companion::Kind kind;
};
constexpr std::array<CompanionType, 6> companionTypes = {{
    {"/image", Companion::Kind::Picture},
    {"/2007/relationships/hdphoto", Companion::Kind::Picture},
    {"/2011/relationships/chartStyle", Companion::Kind::Style},
    {"/2011/relationships/chartColorStyle", Companion::Kind::Style},
    {"/chartUserShapes", Companion::Kind::Markup},
    {"/themeOverride", Companion::Kind::Markup},
}};

std::optional<Companion> companionOf(Package& book, const std::string& source,
                                     const Relationship& relationship, Holder holder) {
    const auto is = [&](std::string_view ending) { return relationship.type.ends_with(ending); };
    if (relationship.isExternal) {
        if (!is("/image") && !is("/hyperlink")) return {};
        return Companion{Companion::Kind::Address, relationship, {}};
    }
    const auto* const known =
        std::find_if(companionTypes.begin(), companionTypes.end(),
                     [&](const CompanionType& one) { return is(one.ending); });
    if (known == companionTypes.end()) return {};
    const bool isPicture = known->kind == Companion::Kind::Picture;
    if (!isPicture && holder == Holder::Markup) return {};
    std::string part = book.relationshipsOf(source).partOf(relationship);
    if (!book.has(part)) return {};
    const std::string type = book.contentTypeOf(part);
    if (type.empty()) return {};
    // A picture keeps the ending of its name, by which a package knows its type.
    if (isPicture && (!type.starts_with("image/") || extensionOf(part).empty())) return {};
    return Companion{known->kind, relationship, std::move(part)};
}

/// Whether a formula leads to another workbook: "[2]Sheet1!$A$1". The number 0 is the own one.
bool leadsElsewhere(std::string_view formula) {
    bool isText = false;
    for (std::size_t i = 0; i < formula.size(); ++i) {
        if (formula[i] == '"') isText = !isText;
        if (formula[i] == '[' && !isText && !formula.substr(i).starts_with("[0]")) return true;
    }
    return false;
}

bool leadsElsewhereFrom(pugi::xml_node node) {
    const std::string_view name = localName(node);
    return (name == "f" || name == "sqref") && leadsElsewhere(node.text().get());
}

bool lacksValues(pugi::xml_node node) {
    const std::string_view name = localName(node);
    const auto lacks = [&](std::string_view reference, std::string_view cache) {
        return name == reference && !childNamed(node, ns::chart, cache);
    };
    return lacks("numRef", "numCache") || lacks("strRef", "strCache") ||
           lacks("multiLvlStrRef", "multiLvlStrCache");
}

/// Whether all that a part's markup names may leave the workbook with it.
bool canLeave(Package& book, const std::string& part, const Xml& xml, Holder holder) {
    const std::vector<Companion> companions = companionsOf(book, part, holder);
    const auto ids = relationshipIdsIn(xml);
    const auto isTaken = [&](const pugi::xml_attribute& id) {
        // An empty id is what stands for no picture.
        return *id.value() == '\0' ||
               std::any_of(companions.begin(), companions.end(),
                           [&](const Companion& one) { return one.relationship.id == id.value(); });
    };
    return std::all_of(ids.begin(), ids.end(), isTaken) &&
           std::all_of(companions.begin(), companions.end(), [&](const Companion& one) {
               return one.kind != Companion::Kind::Markup ||
                      canLeave(book, one.part, Xml(book.read(one.part), one.part), Holder::Markup);
           });
}

std::string obstacleIn(const Xml& xml) {
    auto root = xml.root();
    if (!isNamed(root, ns::chart, "chartSpace")) return "it is no chart of the usual kind";
    if (childNamed(root, ns::chart, "pivotSource")) return "its data is a pivot table";
    if (!elementsBelow(root, leadsElsewhereFrom).empty() ||
        childNamed(root, ns::chart, "externalData"))
        return "its data is in another workbook";
    return elementsBelow(root, lacksValues).empty()
               ? ""
               : "its values are not stored in the workbook's file";
}

std::string obstacleOf(SourceChart& chart, const CopySource& source, WorkbookFiles& workbooks) {
    if (source.file.empty()) return "its workbook has not been saved yet";
    chart.book = workbooks.at(source.file);
    if (chart.book->isTemplate()) return "its workbook is a template";
    const WorkbookSheet* const sheet = chart.book->sheet(source.sheet);
    const WorkbookChart* const found =
        sheet == nullptr ? nullptr : chart.book->chart(*sheet, source.chart);
    if (found == nullptr) return "the workbook's file does not hold it";
    if (found->isExtended) return "it is of a kind that only Excel draws";
    if (found->part.empty()) return "it is missing in the workbook's file";
    chart.part = found->part;
    chart.xml = std::make_unique<Xml>(chart.book->package().read(chart.part), chart.part);
    // How its own page is printed, with what pictures above and below, stays with the workbook.
    auto root = chart.xml->root();
    root.remove_child(childNamed(root, ns::chart, "printSettings"));
    std::string obstacle = obstacleIn(*chart.xml);
    if (obstacle.empty() && !canLeave(chart.book->package(), chart.part, *chart.xml, Holder::Chart))
        return "it holds something that can't leave its workbook";
    static_cast<void>(themeOf(*chart.book));
    return obstacle;
}

}  // namespace

SourceChart findChart(const CopySource& source, WorkbookFiles& workbooks) {
    SourceChart chart;
    try {
        chart.obstacle = obstacleOf(chart, source, workbooks);
    } catch (const PackageError& error) {
        chart.obstacle = workbookObstacle(error, source.file);
    }
    return chart;
}

const std::string& themeOf(WorkbookFile& book) {
    return book.remembered("theme", [&] {
        const std::string part = book.package().partOfType(book.mainPart(), "theme");
        std::string bytes = part.empty() ? part : book.package().read(part);
        if (!bytes.empty()) static_cast<void>(Xml(bytes, part));
        return bytes;
    });
}

std::vector<Companion> companionsOf(Package& book, const std::string& part, Holder holder) {
    std::vector<Companion> companions;
    for (const Relationship& relationship : book.relationshipsOf(part).all()) {
        if (auto companion = companionOf(book, part, relationship, holder))
            companions.push_back(*std::move(companion));
    }
    return companions;
}

std::vector<pugi::xml_attribute> relationshipIdsIn(const Xml& xml) {
    std::vector<pugi::xml_attribute> found;
    visitBelow(xml.root(), [&](pugi::xml_node node) {
        for (const pugi::xml_attribute attribute : node.attributes()) {
            const std::string_view name = attribute.name();
            const auto colon = name.find(':');
            if (colon == std::string_view::npos || name.starts_with("xml")) continue;
            if (attributeNamed(node, ns::relationships, name.substr(colon + 1)) == attribute)
                found.push_back(attribute);
        }
    });
    return found;
}

}  // namespace office::package

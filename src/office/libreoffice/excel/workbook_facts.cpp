#include "office/libreoffice/excel/workbook_facts.h"

#include <pugixml.hpp>

#include <string_view>
#include <type_traits>
#include <utility>

#include "office/package/package.h"
#include "office/package/xml.h"

namespace libreoffice::excel {

namespace {

/// The attribute of a name whatever its prefix: "r:id" in most files, but the prefix is the file's
/// own choice.
std::string attributeEndingIn(const pugi::xml_node& node, std::string_view end) {
    for (const pugi::xml_attribute attribute : node.attributes()) {
        if (std::string_view(attribute.name()).ends_with(end)) return attribute.value();
    }
    return {};
}

WorkbookFacts factsOf(office::package::Package package) {
    WorkbookFacts facts;
    const std::string part = package.partOfType("/", "officeDocument");
    if (part.empty()) return facts;
    const office::package::Xml document(package.read(part), part);
    const auto& relationships = package.relationshipsOf(part);
    const pugi::xml_node workbook = document.root();
    for (const pugi::xml_node node : office::package::childCalled(workbook, "sheets").children()) {
        const auto* const found = relationships.withId(attributeEndingIn(node, ":id"));
        const bool isThere = found != nullptr && !found->isExternal;
        facts.sheets.push_back({node.attribute("name").value(),
                                isThere ? relationships.partOf(*found) : std::string(),
                                isThere && found->type.ends_with("/chartsheet"),
                                std::string_view(node.attribute("state").value()) == "veryHidden"});
    }
    facts.structureIsLocked = office::package::childCalled(workbook, "workbookProtection")
                                  .attribute("lockStructure")
                                  .as_bool();
    facts.calculatesOnLoad =
        office::package::childCalled(workbook, "calcPr").attribute("fullCalcOnLoad").as_bool();
    facts.known = !facts.sheets.empty();
    return facts;
}

office::model::excel::CellBlocks styledTablesIn(office::package::Package package,
                                                const std::string& sheetPart) {
    office::model::excel::CellBlocks blocks;
    if (!package.has(sheetPart)) return blocks;
    const auto& relationships = package.relationshipsOf(sheetPart);
    for (const office::package::Relationship& one : relationships.all()) {
        const bool isPivot = one.type.ends_with("/pivotTable");
        if (one.isExternal || (!isPivot && !one.type.ends_with("/table"))) continue;
        const std::string part = relationships.partOf(one);
        if (!package.has(part)) continue;
        const office::package::Xml table(package.read(part), part);
        const auto child = [&](const char* name) {
            return office::package::childCalled(table.root(), name);
        };
        const auto style = child(isPivot ? "pivotTableStyleInfo" : "tableStyleInfo");
        const auto place = isPivot ? child("location") : table.root();
        const auto cells = office::model::excel::blockOf(place.attribute("ref").value());
        if (cells && !std::string_view(style.attribute("name").value()).empty())
            blocks.push_back(*cells);
    }
    return blocks;
}

/// They stand behind all cells, which nobody has to read for them.
std::string_view sparklineMarkupIn(std::string_view sheet) {
    constexpr std::string_view name = "sparklineGroups";
    const std::size_t close = sheet.rfind(name);
    if (close == std::string_view::npos || close == 0) return {};
    const std::size_t open = sheet.rfind(name, close - 1);
    if (open == std::string_view::npos) return {};
    const std::size_t begin = sheet.rfind('<', open);
    const std::size_t end = sheet.find('>', close);
    if (begin == std::string_view::npos || end == std::string_view::npos) return {};
    return sheet.substr(begin, end + 1 - begin);
}

office::model::excel::CellBlocks sparklinesIn(const office::package::Package& package,
                                              const std::string& sheetPart) {
    using office::package::childCalled;
    office::model::excel::CellBlocks blocks;
    const std::string sheet = package.read(sheetPart);
    const std::string_view markup = sparklineMarkupIn(sheet);
    if (markup.empty()) return blocks;
    const office::package::Xml groups(markup, sheetPart);
    for (const pugi::xml_node group : groups.root().children()) {
        for (const pugi::xml_node one : childCalled(group, "sparklines").children()) {
            const auto cells =
                office::model::excel::blockOf(childCalled(one, "sqref").text().get());
            if (cells) blocks.push_back(*cells);
        }
    }
    return blocks;
}

/// What is read of the file of a workbook; nothing of one that is no package.
template <class Read>
std::invoke_result_t<Read, office::package::Package> readFrom(const rtl::OUString& url, Read read) {
    if (!url.startsWith("file:")) return {};
    try {
        return read(office::package::Package::open(pathOfUrl(url)));
    } catch (const office::package::PackageError&) {
        return {};
    }
}

}  // namespace

office::model::excel::CellBlocks readStyledTables(const rtl::OUString& url,
                                                  const std::string& sheetPart) {
    return readFrom(url, [&](office::package::Package package) {
        return styledTablesIn(std::move(package), sheetPart);
    });
}

office::model::excel::CellBlocks readSparklines(const rtl::OUString& url,
                                                const std::string& sheetPart) {
    return readFrom(url, [&](const office::package::Package& package) {
        return sparklinesIn(package, sheetPart);
    });
}

WorkbookFacts readWorkbookFacts(const rtl::OUString& url) {
    return readFrom(url, factsOf);
}

}  // namespace libreoffice::excel

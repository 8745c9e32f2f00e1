#include "office/libreoffice/excel/workbook_facts.h"

#include <pugixml.hpp>

#include <string_view>
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

}  // namespace

office::model::excel::CellBlocks readStyledTables(const rtl::OUString& url,
                                                  const std::string& sheetPart) {
    if (!url.startsWith("file:")) return {};
    try {
        return styledTablesIn(office::package::Package::open(pathOfUrl(url)), sheetPart);
    } catch (const office::package::PackageError&) {
        return {};
    }
}

WorkbookFacts readWorkbookFacts(const rtl::OUString& url) {
    if (!url.startsWith("file:")) return {};
    try {
        return factsOf(office::package::Package::open(pathOfUrl(url)));
    } catch (const office::package::PackageError&) {
        return {};
    }
}

}  // namespace libreoffice::excel

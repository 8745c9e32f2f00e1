#include "office/libreoffice/excel/workbook_facts.h"

#include <pugixml.hpp>

#include <map>
#include <string_view>

#include "office/libreoffice/excel/package_parts.h"

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

pugi::xml_node childNamed(const pugi::xml_node& parent, std::string_view name) {
    return parent.find_child([&](const pugi::xml_node& node) {
        std::string_view local = node.name();
        if (const auto colon = local.find(':'); colon != std::string_view::npos)
            local.remove_prefix(colon + 1);
        return local == name;
    });
}

}  // namespace

WorkbookFacts readWorkbookFacts(const Connection& connection, const rtl::OUString& url) {
    WorkbookFacts facts;
    const auto parts = PackageParts::open(connection, url);
    if (!parts) return facts;
    const std::string workbookPart = parts->related("", "/officeDocument");
    const std::string text = parts->read(workbookPart);
    pugi::xml_document document;
    if (!document.load_buffer(text.data(), text.size())) return facts;

    std::map<std::string, Relationship> byId;
    for (Relationship& relationship : parts->relationshipsOf(workbookPart)) {
        byId.emplace(relationship.id, std::move(relationship));
    }
    const pugi::xml_node workbook = document.document_element();
    for (const pugi::xml_node node : childNamed(workbook, "sheets").children()) {
        const Relationship& relationship = byId[attributeEndingIn(node, ":id")];
        facts.sheets.push_back({node.attribute("name").value(), relationship.target,
                                relationship.type.ends_with("/chartsheet"),
                                std::string_view(node.attribute("state").value()) == "veryHidden"});
    }
    facts.structureIsLocked =
        childNamed(workbook, "workbookProtection").attribute("lockStructure").as_bool();
    facts.known = !facts.sheets.empty();
    return facts;
}

}  // namespace libreoffice::excel

#include "office/libreoffice/excel/unasking_copy.h"

#include <pugixml.hpp>

#include <sstream>

#include "office/package/package.h"
#include "office/package/xml.h"

namespace libreoffice::excel {

bool writeUnaskingCopy(const std::string& original, const std::string& copy) {
    using office::package::Package;
    try {
        Package package = Package::open(original);
        const auto& relationships = package.relationshipsOf("/");
        const auto* const found = relationships.ofType("officeDocument");
        if (found == nullptr) return false;
        const std::string workbook = relationships.partOf(*found);
        const std::string bytes = package.read(workbook);
        pugi::xml_document document;
        if (!document.load_buffer(bytes.data(), bytes.size(), pugi::parse_full)) return false;
        pugi::xml_node root = document.document_element();
        const pugi::xml_node asking = root.find_child([](const pugi::xml_node& node) {
            return office::package::localName(node) == "fileSharing";
        });
        if (!root.remove_child(asking)) return false;
        std::ostringstream text;
        document.save(text, "", pugi::format_raw);
        package.replace(workbook, text.str());
        package.save(copy);
        return true;
    } catch (const office::package::PackageError&) {
        return false;
    }
}

}  // namespace libreoffice::excel

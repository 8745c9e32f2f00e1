#include "office/libreoffice/excel/changed_copy.h"

#include "office/package/package.h"
#include "office/package/xml.h"

namespace libreoffice::excel {

bool writeChangedCopy(const std::string& original, const std::string& copy, std::string_view owner,
                      std::string_view relationshipType,
                      const std::function<bool(pugi::xml_node root)>& change) {
    using office::package::Package;
    Package package = Package::open(original);
    const std::string part = package.partOfType(owner, relationshipType);
    if (part.empty()) return false;
    const office::package::Xml xml(package.read(part), part);
    if (!change(xml.root())) return false;
    package.replace(part, xml.bytes());
    package.save(copy);
    return true;
}

bool writeUnaskingCopy(const std::string& original, const std::string& copy) {
    try {
        return writeChangedCopy(original, copy, "/", "officeDocument", [](pugi::xml_node workbook) {
            const auto asks = [](const pugi::xml_node& node) {
                return office::package::localName(node) == "fileSharing";
            };
            return workbook.remove_child(workbook.find_child(asks));
        });
    } catch (const office::package::PackageError&) {
        return false;
    }
}

}  // namespace libreoffice::excel

#include "office/libreoffice/excel/unasking_copy.h"

#include "office/libreoffice/excel/changed_copy.h"
#include "office/package/package.h"
#include "office/package/xml.h"

namespace libreoffice::excel {

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

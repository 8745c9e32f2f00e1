#pragma once

#include <string>

#include "office/copied.h"
#include "office/package/file_rules.h"
#include "office/package/package.h"

namespace office::package {

/// Why something can't become an embedded or a linked object, as a clause about it: "its workbook
/// has not been saved yet". Empty if it can. With `sheetAlone` an embedded one keeps its sheet
/// alone, for which the workbook has to be read.
[[nodiscard]] std::string objectObstacle(PasteAs as, const CopySource& source,
                                         WorkbookFiles& workbooks, bool sheetAlone);
/// `Failure` 1004 for what has an obstacle.
void requireNoObstacle(PasteAs as, const CopySource& source, const FileRules& rules,
                       const char* member);

/// The workbook behind an object, and how the object's markup names it.
struct ObjectSource {
    std::string relationship;
    std::string programId;
};
/// Puts a copy of the workbook beside the part that holds the object; `stem` is what its name
/// begins with.
[[nodiscard]] ObjectSource embedWorkbook(Package& package, const std::string& holder,
                                         const std::string& stem, const CopySource& source,
                                         const FileRules& rules);
/// Leads from the part that holds the object to the cells in their file.
[[nodiscard]] ObjectSource linkCells(Package& package, const std::string& holder,
                                     const CopySource& source, const FileRules& rules);

}  // namespace office::package

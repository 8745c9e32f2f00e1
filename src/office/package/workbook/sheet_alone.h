#pragma once

#include <string>

#include "office/package/workbook/workbook_file.h"

namespace office::package {

/// Takes everything out of a workbook's package but one sheet and what that shows. Formulas, names
/// and charts that need what is gone keep their values. Out go, too: macros, connections, pivot
/// tables (their cells stay), controls and embedded objects, conversations, who wrote the workbook
/// and when.
/// `PackageError`, also where a value is not stored that a formula would have to keep.
void keepSheetAlone(Package& workbook, const std::string& main, const WorkbookSheet& sheet);

}  // namespace office::package

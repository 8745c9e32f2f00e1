#pragma once

#include <string>

#include "office/copied.h"
#include "office/package/workbook/workbook_file.h"

namespace office::package {

/// A workbook as it goes into a presentation behind an object.
struct EmbeddedWorkbook {
    std::string bytes;
    WorkbookFormat format;
};

/// A copy of a workbook that shows what was copied of it: its sheet is the active one, and its
/// cells are those that the object shows; of a chart the cells that it covers. With `sheetAlone`
/// nothing of the other sheets is left in it. The file has to hold the sheet. `PackageError`.
[[nodiscard]] EmbeddedWorkbook embeddedWorkbook(WorkbookFile& workbook, const CopySource& source,
                                                bool sheetAlone);

/// Makes what all objects of a sheet alone have in common. `PackageError` for a workbook that can't
/// be reduced to the sheet, such as one that is too large to be read.
void prepareSheetAlone(WorkbookFile& workbook, const WorkbookSheet& sheet);

}  // namespace office::package

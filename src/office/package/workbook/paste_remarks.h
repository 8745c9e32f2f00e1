#pragma once

#include <string>
#include <vector>

#include "office/package/workbook/workbook_file.h"
#include "office/suite.h"

namespace office::package {

/// What a presentation or a document as a file can't take of the items in this form, a line for
/// each reason: it names the items, and says what becomes of them. `sheetAlone` as in `FileRules`.
[[nodiscard]] std::vector<std::string> pasteRemarks(PasteAs as, const std::vector<PasteItem>& items,
                                                    WorkbookFiles& workbooks,
                                                    bool sheetAlone = false);

}  // namespace office::package

#pragma once

#include <string>

#include "office/copied.h"
#include "office/package/presentation/deck_file.h"
#include "office/package/presentation/file_slide.h"

namespace office::package {

/// Puts what was copied on a slide as an object behind its picture: a workbook of its own, or a
/// link to the cells in their file. `Failure` 1004 for what has an obstacle.
FileShapePtr pasteObject(FileSlide& slide, const Copied& copied, PasteAs as);

/// Why something can't become an embedded or a linked object, as a clause about it: "its workbook
/// has not been saved yet". Empty if it can. With `sheetAlone` an embedded one keeps its sheet
/// alone, for which the workbook has to be read.
[[nodiscard]] std::string objectObstacle(PasteAs as, const CopySource& source,
                                         WorkbookFiles& workbooks, bool sheetAlone);

}  // namespace office::package

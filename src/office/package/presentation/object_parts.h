#pragma once

#include <string>

#include "office/copied.h"
#include "office/package/presentation/deck_file.h"
#include "office/package/presentation/file_slide.h"

namespace office::package {

/// Puts what was copied on a slide as an object behind its picture: a workbook of its own, or a
/// link to the cells in their file. `Failure` 1004 with what `objectObstacle` says.
FileShapePtr pasteObject(FileSlide& slide, const Copied& copied, PasteAs as);

/// Why something can't become an embedded or a linked object, in a sentence for the user without
/// its full stop; empty if it can.
[[nodiscard]] std::string objectObstacle(const FileRules& rules, const CopySource& source,
                                         PasteAs as);

}  // namespace office::package

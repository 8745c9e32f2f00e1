#pragma once

#include <string>

#include "office/copied.h"
#include "office/package/presentation/deck_file.h"
#include "office/package/presentation/file_slide.h"

namespace office::package {

/// Puts what was copied on a slide as an object behind its picture: a workbook of its own, or a
/// link to the cells in their file. `Failure` 1004 for what has an obstacle.
FileShapePtr pasteObject(FileSlide& slide, const Copied& copied, PasteAs as);

}  // namespace office::package

#pragma once

#include "session/export_list.h"

namespace catalogue {

using session::ExportItem;
using session::ExportList;
using session::ItemKind;

/// What the main form has chosen about an export.
struct ExportChoices {
    int destination =
        0;  ///< index of `Option1`: 0 PowerPoint, 1 Word, 2 HTML, 3 PDF, 4 image files
    bool predefinedSlides = false;  ///< `OptionPredefSlides`; otherwise new slides at the end
};

}  // namespace catalogue

#pragma once

#include "session/export_list.h"

namespace catalogue {

using session::ExportItem;
using session::ExportList;
using session::ItemKind;

/// By the indexes of `Option1`.
enum class Destination { PowerPoint, Word, Html, Pdf, ImageFiles };
/// By the indexes of `OptionFormat`.
enum class ExportFormat { Pictures, Editable, Embedded, Linked };

/// What the main form has chosen about an export.
struct ExportChoices {
    Destination destination = Destination::PowerPoint;
    ExportFormat format = ExportFormat::Pictures;
    bool predefinedSlides = false;  ///< `OptionPredefSlides`; otherwise new slides at the end
    /// The review asks whether the presentation may be changed. A dialog asks that itself, where
    /// another one can be opened yet.
    bool refusesReadOnly = false;
    /// Of pages: every item is an image, of one width. A dialog asks that itself, later.
    bool areImages = false;
};

}  // namespace catalogue

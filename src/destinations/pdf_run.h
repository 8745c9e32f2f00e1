#pragma once

#include <string>

#include "destinations/row_walk.h"

namespace destinations {

/// What the pages of a PDF hold beside the items.
struct PdfOptions {
    bool pageTitles = true;    ///< captions as headings and bookmarks
    bool includePath = false;  ///< the workbook's path and name and the sheet at the foot
    bool coverPage = false;
    /// An item's size in per cent of the room that its page has, 1 to 100. Proportions stay.
    double sizeFactor = 70;
    /// Lines end at line feeds.
    std::string coverText;
};

struct PdfResult {
    WalkResult walk;
    /// No file comes about where no item got onto a page.
    bool isMade = false;
};

/// Puts the taken rows into a new document of Word, each on a page of its own, exports it to
/// `path`, and closes it without saving. Word is started where none runs, and ended again then. Its
/// own documents are left alone. `Failure` of the suite if there is no Word.
PdfResult ExportRowsToPdf(RowBatch& batch, const PdfOptions& options, const std::string& path);

}  // namespace destinations

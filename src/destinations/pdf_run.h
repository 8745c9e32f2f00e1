#pragma once

#include <string>

#include "destinations/row_walk.h"

namespace destinations {

/// What the pages of a PDF hold beside the items.
struct PdfOptions {
    bool pageTitles = true;    ///< captions as headings and bookmarks
    bool includePath = false;  ///< the workbook's path and name and the sheet at the foot
    bool openPdf = true;
    bool coverPage = false;
    /// An item's size in per cent of the room that its page has, 1 to 100. Proportions stay.
    double sizeFactor = 70;
    /// Lines end at line feeds.
    std::string coverText;
};

/// The per cent that a text asks for; the nearest good number where it is out of range, 70 where it
/// is none. `isGood` says whether it was one.
struct SizeFactor {
    double percent = 70;
    bool isGood = true;
};
[[nodiscard]] SizeFactor sizeFactorOf(std::string_view text);

/// Puts the taken rows into a new document of Word, each on a page of its own, exports it to
/// `path`, and closes it without saving. Word is started where none runs, and ended again then. Its
/// own documents are left alone. `Failure` of the suite if there is no Word.
WalkResult ExportRowsToPdf(RowBatch& batch, const PdfOptions& options, const std::string& path);

}  // namespace destinations

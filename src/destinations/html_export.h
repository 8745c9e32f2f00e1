#pragma once

#include <string>

#include "destinations/html_page.h"
#include "destinations/row_walk.h"

/// The rows as one HTML file, by either of two ways.
namespace destinations {

struct HtmlResult {
    WalkResult walk;
    /// Of the page; empty if no item got onto it, and then there is none.
    std::string file;
};

/// By Excel's own publishing: tables stay tables, and everything has its size in Excel. The
/// workbook gets a sheet for the blank lines while it runs, and is as it was afterwards, marked as
/// changed only if it was so before.
///
/// An item that can't be published is a failure of that item. What can't be written goes to the
/// caller, and takes page and pictures with it.
HtmlResult PublishRowsToHtml(RowBatch& batch, const HtmlOptions& options);

/// As images of one width. Failures are as above.
HtmlResult ExportRowsToHtmlAsImages(RowBatch& batch, const HtmlOptions& options);

}  // namespace destinations

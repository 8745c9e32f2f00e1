#include "catalogue/item_preview.h"

#include "catalogue/row_copies.h"
#include "catalogue/row_objects.h"
#include "office/failure_patterns.h"

namespace catalogue {

using session::OfficeSession;

namespace {

/// False for a range.
bool copyChart(OfficeSession& session, const ExportItem& row) {
    if (row.isRange()) return false;
    if (row.isEmbeddedChart())
        chartObjectOf(session, row).call("Copy");
    else
        CopyRow(session, row);
    return true;
}

}  // namespace

PreviewCopy copyForPreview(OfficeSession& session, const ExportItem& row) {
    if (copyChart(session, row)) return PreviewCopy::Copied;
    const office::Object range = rangeOf(session, row);
    if (range.get("Areas").get("Count").toLong() > 1) return PreviewCopy::SeveralAreas;
    range.call("Copy");
    return PreviewCopy::Copied;
}

void copyForFirstPreview(OfficeSession& session, const ExportItem& row) {
    if (!copyChart(session, row)) CopyCellsAsPicture(rangeOf(session, row), CopyFormat::Pixels);
}

forms::Picture pictureOnClipboard(OfficeSession& session) {
    forms::Picture picture;
    office::ContinueOnFailure().attempt(
        [&] { picture.bytes = session.suite.clipboardPicture(office::Sharpness::Screen); });
    return picture;
}

}  // namespace catalogue

#include "powerpoint/editable.h"

#include <fmt/format.h>

#include "catalogue/export_run.h"
#include "catalogue/row_copies.h"
#include "catalogue/row_objects.h"
#include "office/failure_patterns.h"
#include "powerpoint/numbers.h"
#include "powerpoint/pasted_shape.h"

namespace powerpoint {

namespace {

using catalogue::ExportItem;
using office::arg;
using office::Object;
using session::OfficeSession;

/// If not, a notice has said why.
bool isCopied(OfficeSession& session, const ExportItem& row, const std::string& notFound) {
    const std::string why =
        catalogue::TryCopyRow(session, row, catalogue::CopyPause::None, notFound);
    if (!why.empty()) session::ShowWarningNotice(session.notices, why);
    return why.empty();
}

void pasteChart(OfficeSession& session, const ExportItem& row, const Object& slide) {
    catalogue::RestoreScreenUpdating(session);
    slide.call("Select");
    slide.get("Shapes").call("PasteSpecial", number::defaultData);
    session.host.letEventsRun();
    describeLastShape(slide, row);
}

bool PasteChartSheetEditable(OfficeSession& session, const ExportItem& row, const Object& slide) {
    if (!isCopied(session, row, "No chart found in sheet: " + row.sheet)) return false;
    pasteChart(session, row, slide);
    return true;
}

bool PasteEmbeddedChartEditable(OfficeSession& session, const ExportItem& row,
                                const Object& slide) {
    catalogue::CopyRow(session, row);
    pasteChart(session, row, slide);
    return true;
}

bool PasteRangeEditable(OfficeSession& session, const ExportItem& row, const Object& slide) {
    if (!isCopied(session, row, catalogue::rangeNotFound(row))) return false;
    slide.call("Select");
    catalogue::RestoreScreenUpdating(session);
    office::ContinueOnFailure scope;
    const bool isThere = scope.attempt([&] {
        slide.get("Shapes").call("PasteSpecial", arg("DataType", number::defaultData),
                                 arg("DisplayAsIcon", false), arg("IconFileName", ""),
                                 arg("IconIndex", 0), arg("IconLabel", ""), arg("Link", false));
    });
    if (!isThere) {
        session::ShowWarningNotice(session.notices,
                                   fmt::format("Could not paste '{}' as a table: {}.", row.name,
                                               scope.lastFailure()->description()));
        return false;
    }
    session.host.letEventsRun();
    describeLastShape(slide, row);
    return true;
}

}  // namespace

bool PasteRowEditable(OfficeSession& session, const ExportItem& row, const Object& slide) {
    catalogue::RestoreScreenUpdating(session);
    if (row.isChartSheet()) return PasteChartSheetEditable(session, row, slide);
    if (row.isEmbeddedChart()) return PasteEmbeddedChartEditable(session, row, slide);
    return PasteRangeEditable(session, row, slide);
}

}  // namespace powerpoint

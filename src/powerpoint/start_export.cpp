#include "powerpoint/start_export.h"

#include "office/text.h"

namespace powerpoint {

void StartPowerPointExport(session::OfficeSession& session, const catalogue::ExportList& list) {
    session.ExcelApp.put("DisplayAlerts", false);
    session.CheckedCount = 0;
    for (const catalogue::ExportItem& row : list.rows) {
        if (row.checked) ++session.CheckedCount;
    }
}

void CountRowsWithSlideNumber(session::OfficeSession& session, const catalogue::ExportList& list) {
    const int slides =
        session.PowerPointApp.get("ActivePresentation").get("Slides").get("Count").toLong();
    session.CheckedCount = 0;
    for (const catalogue::ExportItem& row : list.rows) {
        if (!row.checked || row.slideNumber.empty()) continue;
        ++session.CheckedCount;
        if (office::leadingNumber(row.slideNumber) > slides) return;
    }
}

}  // namespace powerpoint

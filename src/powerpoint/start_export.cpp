#include "powerpoint/start_export.h"

#include "office/text.h"

namespace powerpoint {

void StartPowerPointExport(session::OfficeSession& session, const catalogue::ExportList& list) {
    session.ExcelApp.put("DisplayAlerts", false);
    session.CheckedCount = 0;
    for (const catalogue::ExportRow& row : list.rows) {
        if (row.Checked) ++session.CheckedCount;
    }
}

void CountRowsWithSlideNumber(session::OfficeSession& session, const catalogue::ExportList& list) {
    const int slides =
        session.PowerPointApp.get("ActivePresentation").get("Slides").get("Count").toLong();
    session.CheckedCount = 0;
    for (const catalogue::ExportRow& row : list.rows) {
        if (!row.Checked || row.SubItems(2).empty()) continue;
        ++session.CheckedCount;
        if (office::leadingNumber(row.SubItems(2)) > slides) return;
    }
}

}  // namespace powerpoint

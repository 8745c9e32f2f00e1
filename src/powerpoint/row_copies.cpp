#include "powerpoint/row_copies.h"

#include "catalogue/row_objects.h"
#include "office/failure_patterns.h"
#include "session/waits.h"

namespace powerpoint {

namespace {

using session::OfficeSession;

/// One attempt at a copy, and the pause if it went well.
template <class Statement>
bool copied(OfficeSession& session, CopyPause pause, Statement statement) {
    constexpr std::int32_t renderingMs = 250;
    office::ContinueOnFailure scope;
    if (!scope.attempt(statement)) return false;
    if (pause == CopyPause::UntilRendered) session::WaitMilliseconds(session, renderingMs);
    return true;
}

}  // namespace

bool CopyChartSheet(OfficeSession& session, const std::string& name, CopyPause pause) {
    return copied(session, pause, [&] {
        session.ActiveBook.get("Charts").get("Item", name).get("ChartArea").call("Copy");
    });
}

bool CopyEmbeddedChart(OfficeSession& session, const std::string& sheetName,
                       const std::string& chartName, CopyPause pause) {
    return copied(session, pause, [&] {
        session.ActiveBook.get("Sheets")
            .get("Item", sheetName)
            .call("ChartObjects")
            .get("Item", chartName)
            .get("Chart")
            .get("ChartArea")
            .call("Copy");
    });
}

bool CopyRange(OfficeSession& session, const catalogue::ExportItem& row, CopyPause pause) {
    return copied(session, pause, [&] { catalogue::rangeOf(session, row).call("Copy"); });
}

}  // namespace powerpoint

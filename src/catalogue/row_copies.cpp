#include "catalogue/row_copies.h"

#include "catalogue/numbers.h"
#include "catalogue/row_objects.h"
#include "office/failure_patterns.h"
#include "session/waits.h"

namespace catalogue {

using office::arg;
using session::OfficeSession;

void CopyRow(OfficeSession& session, const ExportItem& row) {
    if (row.kind == ItemKind::Range) {
        requiredRange(session, row).call("Copy");
    } else {
        chartOf(session, row).get("ChartArea").call("Copy");
    }
}

void CopyRowAsPicture(OfficeSession& session, const ExportItem& row) {
    if (row.kind == ItemKind::Range) {
        requiredRange(session, row)
            .call("CopyPicture", arg("Appearance", number::asOnScreen),
                  arg("Format", number::pictureFormat));
    } else {
        chartOf(session, row)
            .call("CopyPicture", arg("Appearance", number::asOnScreen),
                  arg("Size", number::asOnScreen), arg("Format", number::pictureFormat));
    }
}

bool TryCopyRow(OfficeSession& session, const ExportItem& row, CopyPause pause) {
    constexpr std::int32_t renderingMs = 250;
    office::ContinueOnFailure scope;
    if (!scope.attempt([&] { CopyRow(session, row); })) return false;
    if (pause == CopyPause::UntilRendered) session::WaitMilliseconds(session, renderingMs);
    return true;
}

std::string DescriptionOf(const ExportItem& row) {
    if (!row.caption.empty()) return row.caption;
    return row.isChartSheet() ? row.sheet : row.name;
}

}  // namespace catalogue

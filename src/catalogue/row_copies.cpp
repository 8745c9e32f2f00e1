#include "catalogue/row_copies.h"

#include <fmt/format.h>

#include "catalogue/numbers.h"
#include "catalogue/row_objects.h"
#include "office/failure_patterns.h"
#include "session/waits.h"

namespace catalogue {

using office::arg;
using session::OfficeSession;

namespace {

office::Object copiedObject(OfficeSession& session, const ExportItem& row) {
    if (row.isRange()) return requiredRange(session, row);
    return chartOf(session, row).get("ChartArea").toObject();
}

}  // namespace

void CopyRow(OfficeSession& session, const ExportItem& row) {
    copiedObject(session, row).call("Copy");
}

void CopyRowAsPicture(OfficeSession& session, const ExportItem& row) {
    if (row.isRange()) {
        requiredRange(session, row)
            .call("CopyPicture", arg("Appearance", number::asOnScreen),
                  arg("Format", number::pictureFormat));
    } else {
        chartOf(session, row)
            .call("CopyPicture", arg("Appearance", number::asOnScreen),
                  arg("Size", number::asOnScreen), arg("Format", number::pictureFormat));
    }
}

std::string TryCopyRow(OfficeSession& session, const ExportItem& row, CopyPause pause,
                       std::string_view notFound) {
    constexpr std::int32_t renderingMs = 250;
    office::ContinueOnFailure scope;
    office::Object object;
    if (!scope.attempt([&] { object = copiedObject(session, row); })) return std::string(notFound);
    if (!scope.attempt([&] { object.call("Copy"); }))
        return fmt::format("Could not paste '{}': {}", row.shownName(),
                           scope.lastFailure()->description());
    if (pause == CopyPause::UntilRendered) session::WaitMilliseconds(session, renderingMs);
    return {};
}

std::string DescriptionOf(const ExportItem& row) {
    if (!row.caption.empty()) return row.caption;
    return row.shownName();
}

}  // namespace catalogue

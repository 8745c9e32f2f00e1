#include "catalogue/row_copies.h"

#include <fmt/format.h>

#include "catalogue/row_objects.h"
#include "office/failure_patterns.h"
#include "session/waits.h"

namespace catalogue {

using office::arg;
using session::OfficeSession;

namespace {

constexpr std::int32_t asOnScreen = 1;

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
        CopyCellsAsPicture(requiredRange(session, row), CopyFormat::Vectors);
    } else {
        CopyChartAsPicture(chartOf(session, row));
    }
}

void CopyCellsAsPicture(const office::Object& cells, CopyFormat format) {
    cells.call("CopyPicture", arg("Appearance", asOnScreen),
               arg("Format", static_cast<std::int32_t>(format)));
}

void CopyChartAsPicture(const office::Object& chart) {
    chart.call("CopyPicture", arg("Appearance", asOnScreen), arg("Size", asOnScreen),
               arg("Format", static_cast<std::int32_t>(CopyFormat::Vectors)));
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

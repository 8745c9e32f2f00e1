#include "powerpoint/object_paste.h"

#include <fmt/format.h>

#include <string>

#include "catalogue/export_run.h"
#include "catalogue/row_objects.h"
#include "office/failure_patterns.h"
#include "powerpoint/pasted_shape.h"
#include "session/powerpoint_session.h"
#include "session/waits.h"

namespace powerpoint {

namespace {

using catalogue::ExportItem;
using office::Object;
using office::Value;
using session::OfficeSession;

/// The notices of a row's kind.
struct RowTexts {
    std::string notFound;
    std::string pasteFailed;
};

RowTexts textsOf(const ExportItem& row, const ObjectRoute& route) {
    if (row.isChartSheet())
        return {
            fmt::format("No chart found in sheet: {}", row.sheet),
            fmt::format("Could not paste chart sheet '{}' {}", row.sheet, route.chartSheetTarget)};
    if (row.isEmbeddedChart())
        return {catalogue::chartNotFound(row),
                fmt::format("Could not paste embedded chart '{}' {}", row.name, route.chartTarget)};
    return {catalogue::rangeNotFound(row),
            fmt::format("Could not paste '{}' {}", row.name, route.rangeTarget)};
}

bool isThere(const Value& pasted) {
    return !pasted.isEmpty() && !(pasted.isObject() && pasted.toObject().isNothing());
}

}  // namespace

bool pasteByAttempts(OfficeSession& session, const Object& slide, NextAttempt next,
                     const std::vector<PasteAttempt>& attempts) {
    constexpr std::int32_t slideShownMs = 250;
    office::ContinueOnFailure scope;
    Object shapes;
    std::int32_t before = 0;
    const bool isShown = scope.attempt([&] {
        shapes = slide.get("Shapes").toObject();
        before = shapes.get("Count").toLong();
        session::PresentationWindow(session).get("View").call("GotoSlide", slide.get("SlideIndex"));
        slide.call("Select");
    });
    if (!isShown) return false;
    catalogue::RestoreScreenUpdating(session);
    session::WaitMilliseconds(session, slideShownMs);
    Value pasted;
    for (const PasteAttempt& attempt : attempts) {
        const bool went = scope.attempt([&] { pasted = attempt(); });
        if (went && (isThere(pasted) || next == NextAttempt::AfterFailure)) break;
    }
    session.host.letEventsRun();
    return isThere(pasted) ||
           scope.read([&] { return shapes.get("Count").toLong() > before; }, false);
}

bool pasteRowAsObject(OfficeSession& session, const ExportItem& row, const Object& slide,
                      const ObjectRoute& route) {
    catalogue::RestoreScreenUpdating(session);
    const RowTexts texts = textsOf(row, route);
    std::string why = catalogue::TryCopyRow(session, row, route.pause, texts.notFound);
    if (why.empty() && !route.paste(session, slide)) why = texts.pasteFailed;
    if (why.empty()) {
        describeLastShape(slide, row);
    } else {
        session::ShowWarningNotice(session.notices, why);
    }
    return why.empty();
}

}  // namespace powerpoint

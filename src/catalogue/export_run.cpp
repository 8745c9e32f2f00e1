#include "catalogue/export_run.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "catalogue/row_objects.h"
#include "office/failure_patterns.h"
#include "office/text.h"

namespace catalogue {

std::int32_t slideNumberOf(std::string_view text) {
    // The box takes either mark of a fraction.
    const std::string point = office::replaceAll(text, ",", ".");
    const double number = std::nearbyint(office::leadingNumber(point));
    constexpr double most = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(std::clamp(number, -most, most));
}

std::vector<TakenRow> takeRows(session::OfficeSession& session, const ExportList& list,
                               const ExportChoices& choices) {
    RowObjects objects(session);
    std::vector<TakenRow> taken;
    bool isAnyPassedOver = false;
    for (std::size_t i = 0; i < list.rows.size(); ++i) {
        const ExportItem& row = list.rows[i];
        if (!row.checked) continue;
        if (!objects.isExportable(row)) {
            isAnyPassedOver = true;
            continue;
        }
        const std::int32_t slide = choices.predefinedSlides ? slideNumberOf(row.slideNumber) : 0;
        if (!choices.predefinedSlides || slide >= 1) taken.push_back({i, slide});
    }
    // What has gone is passed over; a workbook that has gone ends the export here.
    if (isAnyPassedOver) static_cast<void>(session.ActiveBook.get("Name"));
    return taken;
}

std::int32_t CountTakenRows(session::OfficeSession& session, const ExportList& list,
                            const ExportChoices& choices) {
    return office::orElse(
        [&] { return static_cast<std::int32_t>(takeRows(session, list, choices).size()); }, 0);
}

void ProgressStep(session::OfficeSession& session, std::int32_t item, std::int32_t total) {
    session.progress.showItem(item, total);
    session.host.letEventsRun();
}

bool isToEnd(const session::OfficeSession& session, const NeededDocuments* needed) {
    return session.progress.cancelled() || (needed != nullptr && needed->isOneClosed());
}

void TellEnded(session::OfficeSession& session, NeededDocuments* needed, std::int32_t exported,
               std::int32_t total) {
    if (needed != nullptr) needed->letGo();
    const bool isClosed = needed != nullptr && !needed->closed().empty();
    const std::string text =
        fmt::format("{} {} of {} items were exported.",
                    isClosed ? needed->closed() : "The export was cancelled:", exported, total);
    if (needed != nullptr && needed->hasLostTarget()) office::refuse("Export", text);
    session::ShowInfoNotice(session.notices, text);
}

void RestoreScreenUpdating(session::OfficeSession& session) {
    office::ContinueOnFailure scope;
    scope.attempt([&] { session.ExcelApp.put("ScreenUpdating", true); });
    // PowerPoint has no such property in any known version; one that had it would need it.
    scope.attempt([&] { session.PowerPointApp.put("ScreenUpdating", true); });
    session.host.letEventsRun();
}

}  // namespace catalogue

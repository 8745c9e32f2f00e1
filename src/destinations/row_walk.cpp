#include "destinations/row_walk.h"

#include <fmt/format.h>

#include "office/failure_patterns.h"

namespace destinations {

std::int32_t takenRows(session::OfficeSession& session, const catalogue::ExportList& list) {
    return office::orElse(
        [&] { return static_cast<std::int32_t>(catalogue::takeRows(session, list, {}).size()); },
        0);
}

std::int32_t takenRowsOfFiles(session::OfficeSession& session, const catalogue::ExportList& list,
                              const catalogue::ExportChoices& choices) {
    return choices.predefinedSlides ? 0 : takenRows(session, list);
}

WalkResult walkRows(RowBatch& batch,
                    const std::function<void(const catalogue::TakenRow& taken,
                                             const catalogue::ExportItem& row)>& exportRow) {
    const auto rows = catalogue::takeRows(batch.session, batch.list, {});
    const std::ptrdiff_t selected = batch.list.selected;
    WalkResult result;
    result.total = static_cast<std::int32_t>(rows.size());
    for (const catalogue::TakenRow& taken : rows) {
        if (batch.session.progress.cancelled()) break;
        const catalogue::ExportItem& row = batch.list.rows[taken.index];
        batch.list.selected = static_cast<std::ptrdiff_t>(taken.index);
        const auto turn = [&] {
            catalogue::ProgressStep(batch.session, result.done + 1, result.total);
            exportRow(taken, row);
        };
        if (!batch.onFailedItem) {
            turn();
        } else {
            office::ContinueOnFailure scope;
            if (!scope.attempt(turn)) {
                const office::Failure failure = *scope.lastFailure();
                // A full disk is one for every item.
                if (failure.is(office::FailureNumber::PathFileAccess)) throw failure;
                batch.onFailedItem(row, failure);
            }
        }
        ++result.done;
    }
    batch.list.selected = selected;
    return result;
}

void tellIfCancelled(session::OfficeSession& session, const WalkResult& result) {
    if (!result.wasCancelled()) return;
    session::ShowNotice(session.notices,
                        fmt::format("The export was cancelled: {} of {} items were exported.",
                                    result.done, result.total),
                        "Murvane", "info", session::buttons::okOnly);
}

}  // namespace destinations

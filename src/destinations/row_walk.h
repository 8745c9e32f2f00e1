#pragma once

#include <cstdint>
#include <functional>

#include "catalogue/export_choices.h"
#include "catalogue/export_run.h"
#include "catalogue/failed_items.h"
#include "session/office_session.h"

namespace destinations {

/// What an export works on.
struct RowBatch {
    session::OfficeSession& session;
    catalogue::ExportList& list;
    catalogue::OnFailedItem onFailedItem;
    /// Null where nobody closes anything.
    catalogue::NeededDocuments* needed = nullptr;
};

/// What a walk came to.
struct WalkResult {
    /// Items that have had their turn, also those that failed.
    std::int32_t done = 0;
    std::int32_t failed = 0;
    std::int32_t total = 0;

    /// By the user, or by something that was closed.
    [[nodiscard]] bool wasCancelled() const { return done < total; }
};

/// How many rows files and pages would take, for a dialog to say: none where slides that exist were
/// chosen, since those have no such thing.
[[nodiscard]] std::int32_t takenRowsOfFiles(session::OfficeSession& session,
                                            const catalogue::ExportList& list,
                                            const catalogue::ExportChoices& choices);

/// Walks the rows that are checked and on a visible sheet, in display order, and lets each have its
/// turn by `exportRow`. The row at hand is the list's selected one; at the end it is the one
/// that was selected before. When the user cancels, the walk ends after the item at hand, as it
/// does when something is closed that it needs; an item that fails by that has had no turn.
WalkResult walkRows(RowBatch& batch,
                    const std::function<void(const catalogue::TakenRow& taken,
                                             const catalogue::ExportItem& row)>& exportRow);

/// The same for rows that are drawn while the next ones have their turn. What `begin` returns ends
/// the row's turn; it is called a few rows later, in the order of the rows, and fails as the row.
WalkResult walkRowsAhead(
    RowBatch& batch,
    const std::function<std::function<void()>(const catalogue::TakenRow& taken,
                                              const catalogue::ExportItem& row)>& begin);

/// Lets an export of a dialog's walk, takes its progress away, and tells of its early end and of
/// the items that failed.
WalkResult walkAndTell(session::OfficeSession& session, catalogue::ExportList& list,
                       catalogue::NeededDocuments& needed,
                       const std::function<WalkResult(RowBatch& batch)>& exportRows);

}  // namespace destinations

#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "session/export_list.h"
#include "session/office_session.h"

/// What stands on the store sheet: what the user has decided about the items, and about where
/// shapes stand on a slide. Where each of it stands there is known here alone. The workbook itself
/// is never saved.
namespace session {

/// All items that the store of a workbook knows.
struct StoredItems {
    std::vector<ExportItem> items;
    /// The store knew none before.
    bool wereUnknown = false;
};

/// The stored items in their order, and behind them the found ones that the store doesn't know. An
/// item that has vanished from the workbook stays. A store without keys is of an older form and
/// gives way to the found items. The workbook may be without a store.
///
/// Plain code: a failure goes to the caller.
[[nodiscard]] StoredItems MergeWithStore(OfficeSession& session, std::vector<ExportItem> found);

/// The same, and the store, which has to be there, learns of the new ones.
[[nodiscard]] StoredItems MergeIntoStore(OfficeSession& session, std::vector<ExportItem> found);

/// Puts the rows of the list in the place of the stored items; their order becomes that of the
/// store, which is made anew if it has gone. Nothing happens for a list that was not loaded. What
/// fails is passed over; false if anything did.
bool SaveListToStore(OfficeSession& session, const ExportList& list);

/// Where shapes stand on their slide: shares of the slide's height and width. What is left open is
/// the program's to choose.
struct Placement {
    std::optional<double> top;
    std::optional<double> width;
    std::optional<double> left;
};

/// What the store says; all of it is open where there is no number. `Failure` 9 without a store.
[[nodiscard]] Placement readStoredPlacement(OfficeSession& session);

/// `Failure` 9 without a store.
void writeStoredPlacement(OfficeSession& session, const Placement& placement);

}  // namespace session

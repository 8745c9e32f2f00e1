#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "session/export_list.h"
#include "session/office_session.h"

/// The very hidden sheet in which a workbook carries what the user has decided about its items, and
/// about where shapes stand on a slide. Where each of it stands on the sheet is known here alone.
/// The workbook itself is never saved.
namespace session {

namespace store {

inline constexpr const char* sheetName = "kukukukuZichron";
/// Columns A to H, the items.
inline constexpr const char* itemsName = "MurvaneReservedName01";
/// A block that is kept free.
inline constexpr const char* reservedName = "MurvaneReservedName02";
/// A third name that is no item; the program only tests against it.
inline constexpr const char* foreignName = "AllZichron11111";

}  // namespace store

/// Whether the active workbook has a worksheet of this name.
[[nodiscard]] bool SheetExists(OfficeSession& session, std::string_view name);

/// Whether what the user decides can be kept in the active workbook: it may be written, and has the
/// store sheet or can take one. A notice says why not.
[[nodiscard]] bool CanKeepStore(OfficeSession& session);

/// A new worksheet behind all others; the sheet on top stays there. `Failure` of Excel where the
/// workbook takes none.
[[nodiscard]] office::Object AddSheetAtEnd(const office::Object& book);

/// Makes the store sheet with its names and formats, if there is a workbook and it has none.
/// Failures are passed over: a protected workbook stays without.
void EnsureStoreSheet(OfficeSession& session);

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

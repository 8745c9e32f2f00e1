#pragma once

#include "catalogue/inventory_walk.h"

namespace catalogue {

/// Fills `table` with the items of the active workbook, charts first, then chart sheets, then named
/// ranges, and brings the store up to date with them. `count` is `ItemCount` of the session.
/// Returns what the walk learned besides.
///
/// Plain code: a failure of Excel passes through. Items that have vanished from the workbook stay
/// in the store.
InventoryWalk BuildItemTable(session::OfficeSession& session, InventoryValues& values,
                             ItemTable& table);

/// The store sheet of the active workbook. `Failure` 9 if there is none.
[[nodiscard]] office::Object storeSheet(session::OfficeSession& session);

}  // namespace catalogue

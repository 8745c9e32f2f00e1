#pragma once

#include "catalogue/export_choices.h"
#include "session/office_session.h"

namespace catalogue {

/// The quick count: charts on worksheets, chart sheets and names of ranges, hidden or not, into
/// `ItemCount`. It may be more than the full walk finds. Names that can't be read are passed over.
void CountWorkbookItems(session::OfficeSession& session);

/// What the list's head shows once it is filled.
enum class CheckAllState { None = 0, All = 1, Some = 2 };

/// The full walk: brings the store of the active workbook up to date and fills the list from it, in
/// the order of the sheets where the store knew no items, and else in the order that was left, with
/// later items behind. Returns the state of `Check1`, which also counts the ranges of several areas
/// that are unchecked while loading. `ItemCount` becomes the number of items found.
///
/// The preview of the selected row is the caller's: it belongs to the form. Plain code: a failure
/// of Excel passes through, with Excel's drawing, events and calculation switched on again.
CheckAllState LoadItemsToForm(session::OfficeSession& session, ExportList& list);

/// The rows that `LoadItemsToForm` would fill the list with. It asks for no more than they show,
/// and leaves the workbook as it is: it gets no store, and nothing is selected. The list counts as
/// not loaded. Plain code.
void ListItems(session::OfficeSession& session, ExportList& list);

}  // namespace catalogue

#pragma once

#include <map>
#include <vector>

#include "catalogue/export_list.h"
#include "session/office_session.h"

namespace catalogue {

/// Whether the range of an item has several areas, as far as its name is found from its own sheet.
using KnownAreas = std::map<session::ItemIdentity, bool>;

/// What a walk through a workbook finds.
struct FoundItems {
    /// Charts first, then chart sheets, then named ranges, all on visible sheets.
    std::vector<ExportItem> items;
    KnownAreas hasSeveralAreas;
};

/// Walks through the active workbook and moves the loading bar on by each item. A failure of Excel
/// goes to the caller, but a name that can't be read is left out.
[[nodiscard]] FoundItems FindItems(session::OfficeSession& session);

}  // namespace catalogue

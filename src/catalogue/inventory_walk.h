#pragma once

#include <map>
#include <string>
#include <vector>

#include "catalogue/export_choices.h"
#include "session/office_session.h"

namespace catalogue {

/// Whether the range of an item has several areas.
using KnownAreas = std::map<session::ItemIdentity, bool>;

/// What a walk through a workbook finds.
struct FoundItems {
    /// Charts first, then chart sheets, then named ranges, all on visible sheets.
    std::vector<ExportItem> items;
    KnownAreas hasSeveralAreas;
};

/// Whether a name is one under which Excel keeps something of its own: the rows and columns that
/// each printed page repeats, the cells of a filter. Nobody has named those.
[[nodiscard]] bool isOfExcelItself(const std::string& nameText);

/// Walks through the active workbook and moves the loading bar on by each item. A failure of Excel
/// goes to the caller, but a name that can't be read is left out.
[[nodiscard]] FoundItems FindItems(session::OfficeSession& session);

}  // namespace catalogue

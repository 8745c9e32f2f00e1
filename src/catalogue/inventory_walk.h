#pragma once

#include <map>
#include <string>
#include <unordered_set>

#include "catalogue/inventory_values.h"
#include "catalogue/item_table.h"
#include "session/office_session.h"

namespace catalogue {

/// One full walk through the active workbook.
struct InventoryWalk {
    session::OfficeSession& session;
    InventoryValues& values;
    ItemTable& table;
    /// The keys in column 8 of the store's region. Looking a record up in a set instead of going
    /// down the rows gives the same answer: a record is new if no row of the region holds its key.
    std::unordered_set<std::string> storedKeys;
    /// Whether a named range of this key has several areas, as far as the name is found from its
    /// own sheet.
    std::map<std::string, bool> hasSeveralAreas;
};

/// Append the records of one kind. A failure of Excel ends the walk, but a name that can't be read
/// is left out.
void CollectEmbeddedCharts(InventoryWalk& walk);
void CollectChartSheets(InventoryWalk& walk);
void CollectNamedRanges(InventoryWalk& walk);

/// Marks a record as new if the store doesn't hold it.
void MarkIfNew(const InventoryWalk& walk, ExportItem& item);

/// Moves the loading bar on by one record.
void AdvanceLoadBar(session::OfficeSession& session, InventoryValues& values);

}  // namespace catalogue

#pragma once

#include <string_view>

#include "catalogue/export_choices.h"
#include "session_doubles/item.h"

using catalogue::ItemKind;

inline catalogue::ExportItem rowOf(std::string_view name, std::string_view sheet, ItemKind kind) {
    catalogue::ExportItem row = session_doubles::item(kind, name, sheet);
    row.checked = false;
    return row;
}

/// Two charts of the same name, a range whose name holds a comma, one of several areas, and a chart
/// sheet.
inline catalogue::ExportList sampleList() {
    catalogue::ExportList list;
    list.rows.push_back(rowOf("Chart 1", "North", ItemKind::Chart));
    list.rows.push_back(rowOf("Chart 1", "South", ItemKind::Chart));
    list.rows.push_back(rowOf("Sales, total", "North", ItemKind::Range));
    list.rows.push_back(rowOf("Scattered", "South", ItemKind::Range));
    list.rows.back().hasSeveralAreas = true;
    list.rows.push_back(rowOf("{Chart Sheet}", "Overview", ItemKind::ChartSheet));
    return list;
}

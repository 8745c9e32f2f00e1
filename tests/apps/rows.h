#pragma once

#include <string>
#include <utility>

#include "catalogue/export_list.h"

using catalogue::ItemKind;

inline catalogue::ExportItem rowOf(std::string name, std::string sheet, ItemKind kind) {
    catalogue::ExportItem row;
    row.name = std::move(name);
    row.sheet = std::move(sheet);
    row.kind = kind;
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

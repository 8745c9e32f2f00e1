#pragma once

#include <string>
#include <utility>

#include "catalogue/export_list.h"

inline catalogue::ExportRow rowOf(std::string name, std::string sheet, std::string kind) {
    catalogue::ExportRow row;
    row.Text = std::move(name);
    row.SubItems(1) = std::move(sheet);
    row.SubItems(5) = std::move(kind);
    return row;
}

/// Two charts of the same name, a range whose name holds a comma, one of several areas, a chart
/// sheet, and the gap that saving the list leaves.
inline catalogue::ExportList sampleList() {
    catalogue::ExportList list;
    list.rows.push_back(rowOf("Chart 1", "North", "Embedded"));
    list.rows.push_back(rowOf("Chart 1", "South", "Embedded"));
    list.rows.push_back(rowOf("Sales, total", "North", "Range"));
    list.rows.push_back(rowOf("", "", ""));
    list.rows.push_back(rowOf("Scattered", "South", "Range"));
    list.rows.back().ForeColor = catalogue::RowColourRefused;
    list.rows.push_back(rowOf("{Chart Sheet}", "Overview", "Chart"));
    return list;
}

#include "office/model/excel/publications.h"

#include <algorithm>

namespace office::model::excel {

namespace {

CellBlock cellsAround(const std::vector<PlacedCharts::One>& charts) {
    CellBlock all = charts.front().cells;
    for (const PlacedCharts::One& one : charts) all = around(all, one.cells);
    return all;
}

}  // namespace

const PlacedCharts::One* PlacedCharts::of(const SheetChart& chart) const {
    const auto found = std::find_if(charts.begin(), charts.end(),
                                    [&](const One& one) { return one.chart.get() == &chart; });
    return found == charts.end() ? nullptr : &*found;
}

const PlacedCharts& Publications::placedCharts(Sheet& sheet) {
    if (const auto known = placedCharts_.find(&sheet); known != placedCharts_.end())
        return known->second;
    PlacedCharts placed;
    placed.map = sheet.cellMap();
    for (const SheetChartPtr& chart : sheet.charts()) {
        const Box box = chart->box();
        placed.charts.push_back({chart, chart->name(), box, cellsUnder(box, *placed.map)});
    }
    // One alone is as soon looked at when its turn comes.
    if (placed.charts.size() > 1) {
        const CellBlock block = cellsAround(placed.charts);
        if (sheet.cells(block)->areBlank()) placed.blankCells = block;
    }
    return placedCharts_.emplace(&sheet, std::move(placed)).first->second;
}

}  // namespace office::model::excel

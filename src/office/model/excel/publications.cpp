#include "office/model/excel/publications.h"

#include <algorithm>

namespace office::model::excel {

namespace {

Box around(const std::vector<PlacedCharts::One>& charts) {
    Box all = charts.front().box;
    double right = 0;
    double bottom = 0;
    for (const auto& [chart, name, box] : charts) {
        all.left = std::min(all.left, box.left);
        all.top = std::min(all.top, box.top);
        right = std::max(right, box.left + box.width);
        bottom = std::max(bottom, box.top + box.height);
    }
    return {all.left, all.top, right - all.left, bottom - all.top};
}

}  // namespace

const PlacedCharts::One* PlacedCharts::of(const SheetChart& chart) const {
    const auto found = std::find_if(charts.begin(), charts.end(),
                                    [&](const One& one) { return one.chart.get() == &chart; });
    return found == charts.end() ? nullptr : &*found;
}

const PlacedCharts& Publications::placedCharts(const SheetPtr& sheet) {
    if (const auto known = placedCharts_.find(sheet); known != placedCharts_.end())
        return known->second;
    PlacedCharts placed;
    for (const SheetChartPtr& chart : sheet->charts())
        placed.charts.push_back({chart, chart->name(), chart->box()});
    placed.map = sheet->cellMap();
    // One alone is as soon looked at when its turn comes.
    if (placed.charts.size() > 1) {
        const CellBlock block = cellsUnder(around(placed.charts), *placed.map);
        if (sheet->cells(block)->areBlank()) placed.blankCells = block;
    }
    return placedCharts_.emplace(sheet, std::move(placed)).first->second;
}

}  // namespace office::model::excel

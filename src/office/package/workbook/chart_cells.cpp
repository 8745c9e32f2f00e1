#include "office/package/workbook/chart_cells.h"

#include <fmt/format.h>

#include <algorithm>
#include <set>
#include <utility>

namespace office::package {

namespace {

bool isWithin(const CellBlock& inner, const CellBlock& outer) {
    return around(inner, outer) == outer;
}

}  // namespace

ChartCells::ChartCells(const Copied& copied, const std::vector<CellsOfSheet>& wanted)
    : copied_(copied) {
    std::set<std::string> sheets;
    for (const CellsOfSheet& one : wanted) {
        if (sheets.insert(one.sheet).second) readSheet(one.sheet, wanted);
    }
}

/// As one block where its cells are near each other, which is one answer instead of many.
void ChartCells::readSheet(const std::string& sheet, const std::vector<CellsOfSheet>& wanted) {
    constexpr double fewCells = 1000;
    constexpr double mostSpare = 4;
    // Each is a question of its own, and each is looked through for the next.
    constexpr std::size_t mostAreas = 2000;
    std::vector<CellBlock> blocks;
    for (const CellsOfSheet& one : wanted) {
        if (one.sheet == sheet) blocks.insert(blocks.end(), one.blocks.begin(), one.blocks.end());
    }
    CellBlock all = blocks.front();
    double needed = 0;
    for (const CellBlock& block : blocks) {
        all = around(all, block);
        needed += block.cells();
    }
    if (all.cells() <= fewCells + mostSpare * needed) return read(sheet, all);
    for (const CellBlock& block : blocks) {
        if (areas_.size() < mostAreas && areaWith(sheet, block) == nullptr) read(sheet, block);
    }
}

void ChartCells::read(const std::string& sheet, const CellBlock& block) {
    if (auto contents = copied_.contentsOf(sheet, addressOf(block)))
        areas_.push_back({sheet, block, *std::move(contents)});
}

const ChartCells::Area* ChartCells::areaWith(const std::string& sheet,
                                             const CellBlock& block) const {
    const auto found = std::find_if(areas_.begin(), areas_.end(), [&](const Area& area) {
        return area.sheet == sheet && isWithin(block, area.block);
    });
    return found == areas_.end() ? nullptr : &*found;
}

bool ChartCells::know(const CellsOfSheet& cells) const {
    return std::all_of(cells.blocks.begin(), cells.blocks.end(), [&](const CellBlock& block) {
        return areaWith(cells.sheet, block) != nullptr;
    });
}

ChartLine ChartCells::lineOf(const CellsOfSheet& cells, Drawn drawn) const {
    ChartLine line;
    for (const CellBlock& block : cells.blocks) {
        const Area& area = *areaWith(cells.sheet, block);
        const CellContents& contents = area.contents;
        ChartPoint hidden;
        const auto length = static_cast<std::int32_t>(block.cells());
        for (std::int32_t i = 0; i < length; ++i) {
            ChartPoint point{line.count, nullptr, block.firstRow + i / block.columns(),
                             block.firstColumn + i % block.columns()};
            const auto row = static_cast<std::size_t>(point.row - area.block.firstRow);
            const auto column = static_cast<std::size_t>(point.column - area.block.firstColumn);
            if (!contents.has(row, column)) {
                // Nothing follows.
                line.count += static_cast<unsigned>(length - i);
                break;
            }
            const CellContent& content = contents.at(row, column);
            const bool isFilled = content.kind != CellContent::Kind::Blank;
            if (isFilled) point.content = &content;
            if (drawn != Drawn::All && !(contents.showsRow[row] && contents.showsColumn[column])) {
                if (isFilled) hidden = point;
                continue;
            }
            if (!isFilled && drawn == Drawn::ShownHeadings && hidden.content != nullptr)
                point = {line.count, hidden.content, hidden.row, hidden.column};
            hidden = {};
            if (point.content != nullptr) line.points.push_back(point);
            ++line.count;
        }
    }
    return line;
}

std::string ChartCells::textOf(const std::string& sheet, const ChartPoint& point) const {
    const auto text =
        copied_.shownTextOf(sheet, addressOf(CellBlock::cell(point.row, point.column)));
    return text ? *text : fmt::format("{}", point.content->number);
}

}  // namespace office::package

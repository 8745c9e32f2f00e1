#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "office/copied.h"
#include "office/model/excel/cell_block.h"

namespace office::package {

using office::model::excel::CellBlock;
using office::model::excel::CellsOfSheet;

/// A cell with something in it, in a line of cells.
struct ChartPoint {
    /// From 0.
    unsigned index = 0;
    const CellContent* content = nullptr;
    std::int32_t row = 0;
    std::int32_t column = 0;
};

struct ChartLine {
    unsigned count = 0;
    std::vector<ChartPoint> points;
};

/// Which cells make a line. In a line of headings each holds until the next one, also where its own
/// cell is hidden.
enum class Drawn { All, Shown, ShownHeadings };

/// What the cells that a chart draws on hold now, in the program that it was copied in. They are
/// read in few blocks.
class ChartCells {
public:
    ChartCells(const Copied& copied, const std::vector<CellsOfSheet>& wanted);

    /// Whether all of these could be read.
    [[nodiscard]] bool know(const CellsOfSheet& cells) const;
    /// Of known cells, each block one row or one column. It holds as long as this does.
    [[nodiscard]] ChartLine lineOf(const CellsOfSheet& cells, Drawn drawn) const;
    /// As it is shown.
    [[nodiscard]] std::string textOf(const std::string& sheet, const ChartPoint& point) const;

private:
    struct Area {
        std::string sheet;
        CellBlock block;
        CellContents contents;
    };
    void readSheet(const std::string& sheet, const std::vector<CellsOfSheet>& wanted);
    void read(const std::string& sheet, const CellBlock& block);
    [[nodiscard]] const Area* areaWith(const std::string& sheet, const CellBlock& block) const;

    const Copied& copied_;
    std::vector<Area> areas_;
};

}  // namespace office::package

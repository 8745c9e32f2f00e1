#pragma once

#include <cstddef>
#include <vector>

#include "office/package/file_rules.h"
#include "office/table_look.h"

/// How cells of a sheet become cells of a table, whatever markup writes them.
namespace office::package {

/// No characters are smaller, in points.
inline constexpr double smallestSizePt = 1;

/// How a text stands in its cell, in points of the sheet.
struct TextFit {
    /// Between the cell's edges and its text: as little as a sheet has.
    double leftPt = 1;
    double rightPt = 1;
    double topPt = 0;
    double bottomPt = 0;
    double sizePt = 0;
    /// Of the usual distance between lines.
    double spacing = 1;
};

/// The cell that a place of the grid belongs to: where it begins, and how its text stands there.
struct CellOrigin {
    std::size_t row = 0;
    std::size_t column = 0;
    TextFit fit;
};
/// Row by row, one for each place. A row that is lower than its texts would grow, so they come as
/// close as they have to.
[[nodiscard]] std::vector<CellOrigin> cellOrigins(const TableLook& look,
                                                  const MeasureText& measure);

/// Lengths one after another in another unit, rounded so that their sum is the rounded sum.
[[nodiscard]] std::vector<long long> roundedLengths(const std::vector<double>& lengthsPt,
                                                    double unitsPerPt);

/// Along the lines of the text, which run upwards or downwards in a cell that is turned.
[[nodiscard]] CellLook::Across alignmentAlong(const CellLook& cell);
/// Across the lines of the text, the first of which is on the left of those that run upwards.
[[nodiscard]] CellLook::Down alignmentBeside(const CellLook& cell);

}  // namespace office::package

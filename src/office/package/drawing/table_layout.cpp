#include "office/package/drawing/table_layout.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace office::package {

namespace {

constexpr double marginPt = 1;
/// Lines of a text that is broken by the cell's width come no closer to each other.
constexpr double closestLines = 0.8;

double sum(const std::vector<double>& lengths, std::size_t first, std::int32_t count) {
    double all = 0;
    for (std::size_t i = first; i < first + static_cast<std::size_t>(count); ++i)
        all += lengths.at(i);
    return all;
}

/// A text that its cell holds with nothing to spare breaks elsewhere, where characters are a
/// little wider: it may go to the edge that it doesn't begin at.
void giveRoomAside(const CellLook& cell, TextFit& fit) {
    if (cell.across == CellLook::Across::Left) fit.rightPt = 0;
    if (cell.across == CellLook::Across::Right) fit.leftPt = 0;
    if (cell.across == CellLook::Across::Centre) fit.leftPt = fit.rightPt = 0;
}

TextFit textFit(const TableLook& look, std::size_t row, std::size_t column,
                const MeasureText& measure) {
    const CellLook& cell = look.at(row, column);
    TextFit fit;
    const double widthPt = sum(look.columnWidthsPt, column, cell.columns);
    const double heightPt = sum(look.rowHeightsPt, row, cell.rows);
    fit.sizePt = cell.fontSizePt;
    if (cell.across == CellLook::Across::Left) fit.leftPt += cell.indentPt;
    if (cell.across == CellLook::Across::Right) fit.rightPt += cell.indentPt;
    if (cell.rotation != 0) return fit;
    const double roomPt = std::max(widthPt - fit.leftPt - fit.rightPt, 1.0);
    const double textPt =
        measure(cell.text.empty() ? "X" : cell.text, {cell.fontName, cell.fontSizePt, 0},
                cell.wraps && !cell.text.empty() ? std::optional(roomPt) : std::nullopt)
            .height;
    if (!cell.wraps) giveRoomAside(cell, fit);
    const double sparePt = heightPt - textPt;
    if (sparePt < 0 && cell.text.empty()) {
        fit.sizePt = std::max(cell.fontSizePt * heightPt / textPt, smallestSizePt);
    } else if (sparePt < 0) {
        fit.spacing = std::max(heightPt / textPt, cell.wraps ? closestLines : 0.0);
    } else if (cell.down == CellLook::Down::Top) {
        fit.topPt = std::min(sparePt, marginPt);
    } else if (cell.down == CellLook::Down::Bottom) {
        fit.bottomPt = std::min(sparePt, marginPt);
    }
    return fit;
}

}  // namespace

std::vector<CellOrigin> cellOrigins(const TableLook& look, const MeasureText& measure) {
    const std::size_t columns = look.columnWidthsPt.size();
    std::vector<CellOrigin> origins(look.cells.size());
    for (std::size_t row = 0; row < look.rowHeightsPt.size(); ++row) {
        for (std::size_t column = 0; column < columns; ++column) {
            const CellLook& cell = look.at(row, column);
            if (cell.isCovered) continue;
            const CellOrigin own{row, column, textFit(look, row, column, measure)};
            for (std::size_t down = 0; down < static_cast<std::size_t>(cell.rows); ++down) {
                for (std::size_t i = 0; i < static_cast<std::size_t>(cell.columns); ++i)
                    origins.at((row + down) * columns + column + i) = own;
            }
        }
    }
    return origins;
}

std::vector<long long> roundedLengths(const std::vector<double>& lengthsPt, double unitsPerPt) {
    std::vector<long long> all;
    double endPt = 0;
    long long end = 0;
    for (const double length : lengthsPt) {
        endPt += length;
        all.push_back(std::llround(endPt * unitsPerPt) - end);
        end += all.back();
    }
    return all;
}

CellLook::Across alignmentAlong(const CellLook& cell) {
    if (cell.rotation == 0) return cell.across;
    if (cell.down == CellLook::Down::Middle) return CellLook::Across::Centre;
    const bool runsUp = cell.rotation == 90;
    return (cell.down == CellLook::Down::Bottom) == runsUp ? CellLook::Across::Left
                                                           : CellLook::Across::Right;
}

CellLook::Down alignmentBeside(const CellLook& cell) {
    if (cell.rotation == 0) return cell.down;
    if (cell.across == CellLook::Across::Centre) return CellLook::Down::Middle;
    return (cell.across == CellLook::Across::Right) == (cell.rotation == 90)
               ? CellLook::Down::Bottom
               : CellLook::Down::Top;
}

}  // namespace office::package

#pragma once

#include <com/sun/star/table/XCellRange.hpp>

#include <cstdint>
#include <optional>
#include <vector>

#include "office/libreoffice/excel/shown_lines.h"
#include "office/libreoffice/uno_values.h"
#include "office/table_look.h"

namespace libreoffice::excel {

/// What was set for cells, before conditional formats are applied.
struct CellFormat {
    /// No text, and not what merged cells span. The lines are its own: its neighbour's may be in
    /// their place.
    office::CellLook look;
    /// Where its text stands goes by the text otherwise.
    bool isAligned = false;
    bool shrinksToFit = false;
    /// Of what is askew, turned and not by quarters as its look has it: the turn in which it
    /// stands up, 90 or 270.
    std::optional<std::int32_t> uprightTurn;
    std::int32_t numberFormat = 0;
};

/// The formats of a block of cells: one call for each format, not for each cell.
struct CellFormats {
    std::vector<CellFormat> formats;
    /// The place in `formats` of each shown cell, row by row.
    std::vector<std::size_t> ofCells;
};

/// The colour of letters for which none is set, on a ground: 0xBBGGRR both.
[[nodiscard]] std::int32_t automaticColourOn(const std::optional<std::int32_t>& fill);

[[nodiscard]] CellFormats readCellFormats(const uno::Reference<css::table::XCellRange>& cells,
                                          const ShownLines& shown);

}  // namespace libreoffice::excel

#pragma once

#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

#include "office/libreoffice/excel/cell_conditions.h"
#include "office/libreoffice/excel/sheet_record.h"

namespace libreoffice::excel {

/// The conditional formats, among some of a sheet's, that colour each cell by its number. The
/// suite's HTML has such a colour only where no other condition dresses the cell.
class ColourScales {
public:
    ColourScales(SheetRecord& sheet, const std::vector<CellCondition>& conditions);

    /// The ground of a cell with this number, by its place on the sheet, 0xBBGGRR.
    [[nodiscard]] std::optional<std::int32_t> colourOf(std::int32_t column, std::int32_t row,
                                                       double number) const;
    /// Whether a cell's colour goes by a formula's result, and no other condition may dress it: the
    /// colour is then in the HTML of the whole workbook, and nowhere else.
    [[nodiscard]] bool isByFormula(std::int32_t column, std::int32_t row) const;

private:
    struct Scale {
        std::vector<model::CellBlock> blocks;
        /// Numbers and their colours.
        std::vector<std::pair<double, std::int32_t>> steps;
    };

    std::vector<Scale> all_;
    std::vector<model::CellBlock> byFormula_;
    std::vector<model::CellBlock> dressed_;
};

}  // namespace libreoffice::excel

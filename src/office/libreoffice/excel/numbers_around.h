#pragma once

#include <cstdint>
#include <vector>

#include "office/libreoffice/excel/cell_conditions.h"
#include "office/libreoffice/excel/sheet_record.h"

namespace libreoffice::excel {

/// What a scale, bars or icons on cells of a block go by besides: the numbers in their cells around
/// the block, which a copy of the block is without.
struct NumbersAround {
    /// Of `css::sheet::ConditionEntryType`.
    std::int32_t kind;
    std::vector<model::CellBlock> cells;
    std::vector<double> numbers;
};

/// For each of these conditions that has numbers there. Of many, as many as make the same ends and
/// percentiles, but for a hundredth.
[[nodiscard]] std::vector<NumbersAround> numbersAround(
    SheetRecord& sheet, const model::CellBlock& block,
    const std::vector<CellCondition>& conditions);

}  // namespace libreoffice::excel

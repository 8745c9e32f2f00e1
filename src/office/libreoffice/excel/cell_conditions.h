#pragma once

#include <com/sun/star/sheet/XConditionEntry.hpp>

#include <vector>

#include "office/libreoffice/excel/sheet_record.h"

namespace libreoffice::excel {

/// A condition of a sheet, and the cells that it is for.
struct CellCondition {
    std::vector<model::CellBlock> blocks;
    uno::Reference<css::sheet::XConditionEntry> entry;
    /// Of `css::sheet::ConditionEntryType`.
    sal_Int32 kind;
};
/// Those that touch a block of cells.
[[nodiscard]] std::vector<CellCondition> conditionsOn(const SheetRecord& sheet,
                                                      const model::CellBlock& block);

/// The conditions that a copy of cells doesn't work out: it calculates no formula of a condition
/// but what is a number or a text, and compares cells with none but those that are copied too.
class UncopiedConditions {
public:
    explicit UncopiedConditions(const std::vector<CellCondition>& all);

    /// The cells of a block that stand in a copy of it without their conditional formats.
    [[nodiscard]] std::vector<model::CellBlock> within(const model::CellBlock& block) const;

private:
    std::vector<std::vector<model::CellBlock>> byFormula_;
    std::vector<std::vector<model::CellBlock>> amongCells_;
};

}  // namespace libreoffice::excel

#pragma once

#include <com/sun/star/sheet/XConditionEntry.hpp>
#include <com/sun/star/sheet/XConditionalFormat.hpp>

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
/// The name of the style that a condition gives its cells; empty for icons, bars and scales.
[[nodiscard]] rtl::OUString styleNameOf(const CellCondition& condition);
/// Whether it compares each of its cells with all others.
[[nodiscard]] bool comparesCells(const CellCondition& condition);
/// Whether one of some blocks has cells of another.
[[nodiscard]] bool meetsAny(const std::vector<model::CellBlock>& blocks,
                            const model::CellBlock& cells);

/// All of one format.
[[nodiscard]] std::vector<CellCondition> conditionsOf(
    const uno::Reference<css::sheet::XConditionalFormat>& format);
/// All of a sheet.
[[nodiscard]] std::vector<CellCondition> conditionsOf(const SheetRecord& sheet);

/// The cells of a colour scale that others of these conditions may dress. Where one does, the
/// suite's HTML is without the scale's colour.
[[nodiscard]] std::vector<model::CellBlock> dressedByOthers(const CellCondition& scale,
                                                            const std::vector<CellCondition>& all);

/// The conditions that a copy of cells doesn't work out: it calculates no formula of a condition
/// but what is a number or a text, and compares cells with none but those that are copied too.
class UncopiedConditions {
public:
    explicit UncopiedConditions(const std::vector<CellCondition>& all);

    /// The cells of a block that stand in a copy of it without their conditional formats.
    [[nodiscard]] std::vector<model::CellBlock> within(const model::CellBlock& block) const;
    /// Whether a block has cells whose colour no HTML of the suite may have: of scales that go by a
    /// formula, beneath other conditions.
    [[nodiscard]] bool lackColourIn(const model::CellBlock& block) const {
        return meetsAny(colourless_, block);
    }

private:
    std::vector<std::vector<model::CellBlock>> byFormula_;
    std::vector<std::vector<model::CellBlock>> amongCells_;
    std::vector<model::CellBlock> colourless_;
};

}  // namespace libreoffice::excel

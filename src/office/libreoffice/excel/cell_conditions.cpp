#include "office/libreoffice/excel/cell_conditions.h"

#include <com/sun/star/sheet/ColorScaleEntryType.hpp>
#include <com/sun/star/sheet/ConditionEntryType.hpp>
#include <com/sun/star/sheet/ConditionFormatOperator.hpp>
#include <com/sun/star/sheet/XColorScaleEntry.hpp>
#include <com/sun/star/sheet/XConditionalFormat.hpp>
#include <com/sun/star/sheet/XConditionalFormats.hpp>
#include <com/sun/star/sheet/XSheetCellRanges.hpp>

#include <algorithm>

#include "office/libreoffice/excel/answered.h"
#include "office/text.h"

namespace libreoffice::excel {

namespace {

namespace ConditionType = css::sheet::ConditionEntryType;
using model::CellBlock;

bool isByFormula(const CellCondition& condition) {
    if (condition.kind == ConditionType::COLORSCALE) {
        using Steps = uno::Sequence<uno::Reference<css::sheet::XColorScaleEntry>>;
        const auto steps = property<Steps>(condition.entry, "ColorScaleEntries");
        return std::any_of(steps.begin(), steps.end(), [](const auto& step) {
            return step->getType() == css::sheet::ColorScaleEntryType::COLORSCALE_FORMULA;
        });
    }
    if (condition.kind != ConditionType::CONDITION) return false;
    for (const char* name : {"Formula1", "Formula2"}) {
        auto formula = fromUno(property<rtl::OUString>(condition.entry, name));
        if (formula.ends_with('%')) formula.pop_back();
        if (!formula.empty() && !formula.starts_with('"') && !office::numberOf(formula))
            return true;
    }
    return false;
}

std::vector<CellBlock> blocksOf(const uno::Reference<css::sheet::XConditionalFormat>& format) {
    const auto ranges =
        answered(property<uno::Reference<css::sheet::XSheetCellRanges>>(format, "Range"));
    std::vector<CellBlock> blocks;
    for (const auto& address : ranges->getRangeAddresses()) blocks.push_back(blockOf(address));
    return blocks;
}

}  // namespace

bool comparesCells(const CellCondition& condition) {
    using namespace css::sheet::ConditionFormatOperator;
    if (condition.kind != ConditionType::CONDITION) return false;
    const auto kind = property<sal_Int32>(condition.entry, "Operator");
    return kind >= DUPLICATE && kind <= BELOW_EQUAL_AVERAGE;
}

rtl::OUString styleNameOf(const CellCondition& condition) {
    if (condition.kind != ConditionType::CONDITION && condition.kind != ConditionType::DATE)
        return {};
    return property<rtl::OUString>(condition.entry, "StyleName");
}

bool meetsAny(const std::vector<CellBlock>& blocks, const CellBlock& cells) {
    return std::any_of(blocks.begin(), blocks.end(), [&](const CellBlock& each) {
        return intersection(each, cells).has_value();
    });
}

std::vector<CellCondition> conditionsOf(
    const uno::Reference<css::sheet::XConditionalFormat>& format) {
    const std::vector<CellBlock> blocks = blocksOf(format);
    std::vector<CellCondition> all;
    const sal_Int32 count = format->getCount();
    for (sal_Int32 i = 0; i < count; ++i) {
        const uno::Reference<css::sheet::XConditionEntry> entry(format->getByIndex(i),
                                                                uno::UNO_QUERY_THROW);
        all.push_back({blocks, entry, entry->getType()});
    }
    return all;
}

std::vector<CellCondition> conditionsOf(const SheetRecord& sheet) {
    std::vector<CellCondition> found;
    const auto formats = property<uno::Reference<css::sheet::XConditionalFormats>>(
        sheet.sheet(), "ConditionalFormats");
    if (!formats.is()) return found;
    for (const auto& format : formats->getConditionalFormats()) {
        const auto conditions = conditionsOf(format);
        found.insert(found.end(), conditions.begin(), conditions.end());
    }
    return found;
}

std::vector<CellBlock> dressedByOthers(const CellCondition& scale,
                                       const std::vector<CellCondition>& all) {
    std::vector<CellBlock> dressed;
    for (const CellCondition& other : all) {
        if (other.kind != ConditionType::CONDITION && other.kind != ConditionType::DATE) continue;
        for (const CellBlock& block : other.blocks) {
            for (const CellBlock& each : scale.blocks)
                if (const auto common = intersection(each, block)) dressed.push_back(*common);
        }
    }
    return dressed;
}

UncopiedConditions::UncopiedConditions(const std::vector<CellCondition>& all) {
    for (const CellCondition& condition : all) {
        if (isByFormula(condition)) {
            byFormula_.push_back(condition.blocks);
            if (condition.kind != ConditionType::COLORSCALE) continue;
            const auto dressed = dressedByOthers(condition, all);
            colourless_.insert(colourless_.end(), dressed.begin(), dressed.end());
        } else if (comparesCells(condition)) {
            amongCells_.push_back(condition.blocks);
        }
    }
}

std::vector<CellBlock> UncopiedConditions::within(const CellBlock& block) const {
    std::vector<CellBlock> found;
    const auto takeCommon = [&](const std::vector<CellBlock>& blocks) {
        for (const CellBlock& each : blocks)
            if (const auto common = intersection(each, block)) found.push_back(*common);
    };
    for (const auto& blocks : byFormula_) takeCommon(blocks);
    for (const auto& blocks : amongCells_) {
        const bool isWhole = std::all_of(blocks.begin(), blocks.end(), [&](const CellBlock& each) {
            return intersection(each, block) == each;
        });
        if (!isWhole) takeCommon(blocks);
    }
    return found;
}

}  // namespace libreoffice::excel

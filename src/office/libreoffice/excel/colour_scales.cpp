#include "office/libreoffice/excel/colour_scales.h"

#include <com/sun/star/sheet/ColorScaleEntryType.hpp>
#include <com/sun/star/sheet/ConditionEntryType.hpp>
#include <com/sun/star/sheet/XColorScaleEntry.hpp>

#include <algorithm>
#include <cmath>

#include "office/libreoffice/excel/book_looks.h"
#include "office/libreoffice/excel/calc_document.h"
#include "office/libreoffice/excel/numbers_in_cells.h"
#include "office/text.h"

namespace libreoffice::excel {

namespace {

namespace StepType = css::sheet::ColorScaleEntryType;
using Step = uno::Reference<css::sheet::XColorScaleEntry>;

/// What shares of a scale are counted between: its end, if that is a number of its own.
double endOfScale(const Step& step, double otherwise) {
    if (step->getType() != StepType::COLORSCALE_VALUE) return otherwise;
    return office::leadingNumber(fromUno(step->getFormula()));
}

/// Nothing for the result of a formula.
std::optional<double> numberAt(const Step& step, double least, double most,
                               const std::vector<double>& sorted) {
    const double value = office::leadingNumber(fromUno(step->getFormula()));
    switch (step->getType()) {
        case StepType::COLORSCALE_MIN:
            return sorted.front();
        case StepType::COLORSCALE_MAX:
            return sorted.back();
        case StepType::COLORSCALE_PERCENT:
            return std::lerp(least, most, value / 100);
        case StepType::COLORSCALE_PERCENTILE:
            return percentile(sorted, value / 100);
        case StepType::COLORSCALE_VALUE:
            return value;
        default:
            return std::nullopt;
    }
}

/// As the suite mixes them: each part is cut to a whole number.
std::int32_t mixed(std::int32_t one, std::int32_t other, double share) {
    std::int32_t mix = 0;
    for (const int shift : {0, 8, 16}) {
        const std::int32_t from = one >> shift & 0xFF, to = other >> shift & 0xFF;
        mix |= (from + static_cast<std::int32_t>(share * (to - from))) << shift;
    }
    return mix;
}

}  // namespace

ColourScales::ColourScales(SheetRecord& sheet, const std::vector<CellCondition>& conditions) {
    for (const CellCondition& condition : conditions) {
        const auto& [blocks, entry, kind] = condition;
        if (kind != css::sheet::ConditionEntryType::COLORSCALE) continue;
        const auto steps = property<uno::Sequence<Step>>(entry, "ColorScaleEntries");
        const auto sorted = sheet.book().looks().numbersIn(sheet, blocks);
        const std::vector<double>& numbers = *sorted;
        if (!steps.hasElements() || numbers.empty()) continue;
        const double least = endOfScale(steps[0], numbers.front());
        const double most = endOfScale(steps[steps.getLength() - 1], numbers.back());
        Scale scale = {blocks, {}};
        for (const Step& step : steps) {
            const auto number = numberAt(step, least, most, numbers);
            if (!number) break;
            scale.steps.emplace_back(*number, swapRedAndBlue(step->getColor()));
        }
        const bool isWhole = scale.steps.size() == static_cast<std::size_t>(steps.getLength());
        if (!isWhole) {
            const auto dressed = dressedByOthers(condition, conditions);
            byFormula_.insert(byFormula_.end(), blocks.begin(), blocks.end());
            dressed_.insert(dressed_.end(), dressed.begin(), dressed.end());
        } else if (least < most) {
            all_.push_back(std::move(scale));
        }
    }
}

bool ColourScales::isByFormula(std::int32_t column, std::int32_t row) const {
    const auto cell = model::CellBlock::cell(row, column);
    return meetsAny(byFormula_, cell) && !meetsAny(dressed_, cell);
}

std::optional<std::int32_t> ColourScales::colourOf(std::int32_t column, std::int32_t row,
                                                   double number) const {
    const auto cell = model::CellBlock::cell(row, column);
    const auto found = std::find_if(
        all_.begin(), all_.end(), [&](const Scale& scale) { return meetsAny(scale.blocks, cell); });
    if (found == all_.end()) return std::nullopt;
    const auto& steps = found->steps;
    const auto above = std::find_if(steps.begin(), steps.end(),
                                    [&](const auto& step) { return number <= step.first; });
    if (above == steps.end()) return steps.back().second;
    if (above == steps.begin()) return steps.front().second;
    const auto below = above - 1;
    return mixed(below->second, above->second,
                 (number - below->first) / (above->first - below->first));
}

}  // namespace libreoffice::excel

#include "office/libreoffice/excel/numbers_around.h"

#include <com/sun/star/sheet/ColorScaleEntryType.hpp>
#include <com/sun/star/sheet/ConditionEntryType.hpp>
#include <com/sun/star/sheet/DataBarEntryType.hpp>
#include <com/sun/star/sheet/IconSetFormatEntry.hpp>
#include <com/sun/star/sheet/XColorScaleEntry.hpp>
#include <com/sun/star/sheet/XDataBarEntry.hpp>
#include <com/sun/star/sheet/XIconSetEntry.hpp>

#include <algorithm>
#include <iterator>
#include <utility>

#include "office/libreoffice/excel/book_looks.h"
#include "office/libreoffice/excel/calc_document.h"
#include "office/libreoffice/excel/numbers_in_cells.h"

namespace libreoffice::excel {

namespace {

namespace Kind = css::sheet::ConditionEntryType;

template <class Step>
bool hasStepOf(sal_Int32 type, const CellCondition& condition, const char* steps) {
    const auto all = property<uno::Sequence<uno::Reference<Step>>>(condition.entry, steps);
    return std::any_of(all.begin(), all.end(),
                       [&](const auto& step) { return step->getType() == type; });
}

/// Others go by the least number and the largest one alone.
bool goesByPercentiles(const CellCondition& condition) {
    using namespace css::sheet;
    if (condition.kind == Kind::COLORSCALE)
        return hasStepOf<XColorScaleEntry>(ColorScaleEntryType::COLORSCALE_PERCENTILE, condition,
                                           "ColorScaleEntries");
    if (condition.kind == Kind::DATABAR)
        return hasStepOf<XDataBarEntry>(DataBarEntryType::DATABAR_PERCENTILE, condition,
                                        "DataBarEntries");
    return hasStepOf<XIconSetEntry>(IconSetFormatEntry::ICONSET_PERCENTILE, condition,
                                    "IconSetEntries");
}

/// So many of them in even steps, with both ends.
std::vector<double> someOf(const std::vector<double>& sorted, std::size_t count) {
    std::vector<double> some;
    for (std::size_t i = 0; i < count; ++i)
        some.push_back(sorted[i * (sorted.size() - 1) / (count - 1)]);
    return some;
}

}  // namespace

std::vector<NumbersAround> numbersAround(SheetRecord& sheet, const model::CellBlock& block,
                                         const std::vector<CellCondition>& conditions) {
    // Putting thousands into cells takes its time.
    constexpr std::size_t enough = 10'000;
    std::vector<NumbersAround> found;
    for (const CellCondition& condition : conditions) {
        const auto& [blocks, entry, kind] = condition;
        if (kind != Kind::COLORSCALE && kind != Kind::DATABAR && kind != Kind::ICONSET) continue;
        const auto inside = intersection(blocks, {block});
        if (inside == blocks) continue;
        const auto all = sheet.book().looks().numbersIn(sheet, blocks);
        const auto copied = sortedNumbers(sheet, inside);
        std::vector<double> numbers;
        std::set_difference(all->begin(), all->end(), copied.begin(), copied.end(),
                            std::back_inserter(numbers));
        if (numbers.size() > 2 && !goesByPercentiles(condition))
            numbers = {numbers.front(), numbers.back()};
        else if (numbers.size() > enough && copied.size() < enough / 100)
            // Those of the block weigh a hundredth more at most.
            numbers = someOf(numbers, enough);
        if (!numbers.empty()) found.push_back({kind, inside, std::move(numbers)});
    }
    return found;
}

}  // namespace libreoffice::excel

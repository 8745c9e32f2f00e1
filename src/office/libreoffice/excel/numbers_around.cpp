#include "office/libreoffice/excel/numbers_around.h"

#include <com/sun/star/sheet/ConditionEntryType.hpp>

#include <algorithm>
#include <iterator>
#include <utility>

#include "office/libreoffice/excel/numbers_in_cells.h"

namespace libreoffice::excel {

std::vector<NumbersAround> numbersAround(SheetRecord& sheet, const model::CellBlock& block,
                                         const std::vector<CellCondition>& conditions) {
    namespace Kind = css::sheet::ConditionEntryType;
    std::vector<NumbersAround> found;
    for (const CellCondition& condition : conditions) {
        const auto& [blocks, entry, kind] = condition;
        if (kind != Kind::COLORSCALE && kind != Kind::DATABAR && kind != Kind::ICONSET) continue;
        const auto inside = intersection(blocks, {block});
        if (inside == blocks) continue;
        const auto all = sortedNumbers(sheet, blocks), copied = sortedNumbers(sheet, inside);
        NumbersAround around = {kind, inside, {}};
        std::set_difference(all.begin(), all.end(), copied.begin(), copied.end(),
                            std::back_inserter(around.numbers));
        if (!around.numbers.empty()) found.push_back(std::move(around));
    }
    return found;
}

}  // namespace libreoffice::excel

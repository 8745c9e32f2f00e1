#include "office/libreoffice/excel/numbers_in_cells.h"

#include <com/sun/star/sheet/XCellRangeData.hpp>

#include <algorithm>
#include <cmath>

namespace libreoffice::excel {

std::vector<double> sortedNumbers(SheetRecord& sheet, const std::vector<model::CellBlock>& blocks) {
    std::vector<double> numbers;
    const model::CellBlock used = sheet.used();
    for (const model::CellBlock& block : blocks) {
        const auto filled = intersection(block, used);
        if (!filled) continue;
        for (const auto& row :
             as<css::sheet::XCellRangeData>(sheet.range(*filled))->getDataArray()) {
            for (const uno::Any& value : row) {
                if (double number = 0; value >>= number) numbers.push_back(number);
            }
        }
    }
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}

double percentile(const std::vector<double>& sorted, double share) {
    const double place = std::clamp(share, 0.0, 1.0) * static_cast<double>(sorted.size() - 1);
    const auto below = static_cast<std::size_t>(place);
    const std::size_t above = std::min(below + 1, sorted.size() - 1);
    return std::lerp(sorted[below], sorted[above], place - static_cast<double>(below));
}

}  // namespace libreoffice::excel

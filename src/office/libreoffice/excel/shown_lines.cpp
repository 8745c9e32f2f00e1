#include "office/libreoffice/excel/shown_lines.h"

#include <algorithm>

namespace libreoffice::excel {

ShownStretch shownBetween(const std::vector<std::int32_t>& shown, std::int32_t first,
                          std::int32_t last) {
    const auto from = std::lower_bound(shown.begin(), shown.end(), first);
    const auto to = std::upper_bound(from, shown.end(), last);
    return {static_cast<std::size_t>(from - shown.begin()),
            static_cast<std::size_t>(to - shown.begin())};
}

}  // namespace libreoffice::excel

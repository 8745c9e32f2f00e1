#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace libreoffice::excel {

/// The columns and the rows of a block that aren't hidden, by their places on the sheet from 0.
struct ShownLines {
    std::vector<std::int32_t> columns;
    std::vector<std::int32_t> rows;
};

/// Where those of a stretch on the sheet begin and end among the shown ones.
struct ShownStretch {
    std::size_t begin;
    std::size_t end;
};
[[nodiscard]] ShownStretch shownBetween(const std::vector<std::int32_t>& shown, std::int32_t first,
                                        std::int32_t last);

}  // namespace libreoffice::excel

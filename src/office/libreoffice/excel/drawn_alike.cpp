#include "office/libreoffice/excel/drawn_alike.h"

#include <algorithm>
#include <array>

namespace libreoffice::excel {

bool isDrawnAlike(std::string_view svg) {
    constexpr std::size_t most = 8U << 20U;
    constexpr std::array<std::string_view, 4> otherwise = {"<image", "<pattern", "<mask",
                                                           "<filter"};
    return svg.size() < most &&
           std::none_of(otherwise.begin(), otherwise.end(), [&](std::string_view element) {
               return svg.find(element) != std::string_view::npos;
           });
}

}  // namespace libreoffice::excel

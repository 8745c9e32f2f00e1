#include "destinations/size_factor.h"

#include <algorithm>

#include "office/text.h"

namespace destinations {

SizeFactor sizeFactorOf(std::string_view text) {
    constexpr double lowest = 1;
    constexpr double highest = 100;
    SizeFactor factor;
    const auto number = office::numberOf(text);
    factor.isGood = number && *number >= lowest && *number <= highest;
    if (number) factor.percent = std::clamp(*number, lowest, highest);
    return factor;
}

}  // namespace destinations

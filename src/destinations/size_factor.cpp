#include "destinations/size_factor.h"

#include <algorithm>

#include "office/text.h"

namespace destinations {

SizeFactor sizeFactorOf(std::string_view text) {
    constexpr double lowest = 1;
    constexpr double highest = 100;
    SizeFactor factor;
    // Either mark of a fraction, as the boxes of the main form take it.
    const auto number = office::numberOf(office::replaceAll(text, ",", "."));
    factor.isNumber = number.has_value();
    factor.isGood = number && *number >= lowest && *number <= highest;
    if (number) factor.percent = std::clamp(*number, lowest, highest);
    return factor;
}

}  // namespace destinations

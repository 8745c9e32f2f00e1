#pragma once

#include <string_view>

namespace destinations {

/// The per cent that a text asks for; the nearest good number where it is out of range, 70 where it
/// is none.
struct SizeFactor {
    double percent = 70;
    bool isNumber = true;
    bool isGood = true;
};
[[nodiscard]] SizeFactor sizeFactorOf(std::string_view text);

}  // namespace destinations

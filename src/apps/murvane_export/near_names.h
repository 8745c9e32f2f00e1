#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace unattended {

/// Up to three of `known` that `wanted` may be a slip of: the nearest first, none that has little
/// in common with it. A known name `NAME@SHEET` is compared by its part ahead of the "@" as well.
[[nodiscard]] std::vector<std::string> nearNames(std::string_view wanted,
                                                 const std::vector<std::string>& known);

}  // namespace unattended

#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace apps {

/// Where the first byte stands that is not part of well-formed UTF-8, or `npos`.
[[nodiscard]] std::size_t firstBadUtf8(std::string_view text);

/// Characters, each counted once whatever its bytes.
[[nodiscard]] std::size_t characterCount(std::string_view text);

/// The text on one line that a terminal shows as it is: control characters become blanks.
[[nodiscard]] std::string printable(std::string_view text);

}  // namespace apps

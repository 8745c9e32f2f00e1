#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace apps {

/// How many columns of a terminal the text takes: characters of East Asian scripts and pictographs
/// take two, marks that sit on another character none. The text is well-formed UTF-8.
[[nodiscard]] std::size_t columnCount(std::string_view text);

/// The text as a terminal shows it without doing what it says: control characters become blanks but
/// for those that are `kept`, such as the ends of lines.
[[nodiscard]] std::string printable(std::string_view text, std::string_view kept = {});

}  // namespace apps

#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace apps {

/// Where the first byte stands that is not part of well-formed UTF-8, or `npos`.
[[nodiscard]] std::size_t firstBadUtf8(std::string_view text);

/// How many columns of a terminal the text takes: characters of East Asian scripts and pictographs
/// take two, marks that sit on another character none. The text is well-formed UTF-8.
[[nodiscard]] std::size_t columnCount(std::string_view text);

/// The text as a terminal shows it without doing what it says: control characters become blanks but
/// for those that are `kept`, such as the ends of lines.
[[nodiscard]] std::string printable(std::string_view text, std::string_view kept = {});

/// A path as the system has it, from UTF-8, and back: `path::string` is another encoding elsewhere.
[[nodiscard]] std::filesystem::path pathOf(std::string_view text);
[[nodiscard]] std::string utf8Of(const std::filesystem::path& path);

}  // namespace apps

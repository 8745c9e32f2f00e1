#pragma once

#include <optional>
#include <string>
#include <string_view>

/// The few text helpers that every layer needs. All text is UTF-8; case means the ASCII letters,
/// which is all that member names, keys and kinds are made of.
namespace office {

/// Without leading and trailing blanks (code 32 alone, as the platform's `Trim`).
[[nodiscard]] std::string_view trim(std::string_view text);

[[nodiscard]] std::string lowerCase(std::string_view text);

[[nodiscard]] bool sameIgnoringCase(std::string_view left, std::string_view right);

[[nodiscard]] std::string replaceAll(std::string_view text, std::string_view what,
                                     std::string_view with);

/// The number that a text begins with, the way `Val` reads it: blanks skipped, a point as decimal
/// mark, 0 when there is none. "12 px" is 12, "abc" is 0.
[[nodiscard]] double leadingNumber(std::string_view text);

/// The number that the whole text is, blanks around it aside; nothing if it is anything else.
[[nodiscard]] std::optional<double> numberOf(std::string_view text);

}  // namespace office

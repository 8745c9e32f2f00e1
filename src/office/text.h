#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The few text helpers that every layer needs. All text is UTF-8.
namespace office {

/// Without leading and trailing blanks (code 32 alone, as the platform's `Trim`).
[[nodiscard]] std::string_view trim(std::string_view text);

/// In lower case, the ASCII letters alone: member names, keys and kinds hold no others.
[[nodiscard]] std::string lowerCase(std::string_view text);

/// Whether two texts are the same but for the case of letters of any script, as names of sheets,
/// charts and members are compared.
[[nodiscard]] bool sameIgnoringCase(std::string_view left, std::string_view right);

/// Alike for texts that are the same but for the case of their letters, of any script.
[[nodiscard]] std::string folded(std::string_view text);

/// Bytes that compare as the user's eye sorts the texts that they are made from: by the rules of
/// the user's language, accents after plain letters, case aside.
[[nodiscard]] std::string sortKey(std::string_view text);

/// The names of things of which several may bear the same: the second "Sales" is called "Sales
/// (2)", or by the next number that is free. Empty ones stay.
[[nodiscard]] std::vector<std::string> distinctNames(std::vector<std::string> names);

/// The lines of a text, whatever its line breaks are; an empty text is one empty line.
[[nodiscard]] std::vector<std::string> linesOf(std::string_view text);

[[nodiscard]] std::string replaceAll(std::string_view text, std::string_view what,
                                     std::string_view with);

/// A text as it stands in an address: everything escaped but letters, digits and -._~
[[nodiscard]] std::string addressWord(std::string_view text);
/// The same for the address that a link in an Office document leads to: letters beyond ASCII stay,
/// as Office writes them. What is escaped there Windows reads by its code page.
[[nodiscard]] std::string linkWord(std::string_view text);

/// With the five characters that mean something in markup replaced.
[[nodiscard]] std::string escapeMarkup(std::string_view text);

/// The user's language as pages name it: "de".
[[nodiscard]] std::string userLanguage();

/// A character of a text. A byte that begins none that is well-formed stands for itself.
struct Character {
    std::string_view bytes;
    char32_t code;
};

/// The characters of a text, whose bytes stay where they are.
[[nodiscard]] std::vector<Character> charactersOf(std::string_view text);

/// Where the first byte stands that is not part of well-formed UTF-8, or `npos`.
[[nodiscard]] std::size_t firstBadUtf8(std::string_view text);

/// The number that a text begins with, the way `Val` reads it: blanks skipped, a point as decimal
/// mark, 0 when there is none. "12 px" is 12, "abc" is 0.
[[nodiscard]] double leadingNumber(std::string_view text);

/// The number that the whole text is, blanks around it aside; nothing if it is anything else.
[[nodiscard]] std::optional<double> numberOf(std::string_view text);

}  // namespace office

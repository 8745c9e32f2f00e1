#include "office/text.h"

#include <unicode/coll.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <charconv>
#include <map>
#include <memory>
#include <set>

namespace office {

namespace {

char lower(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool isAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

icu::UnicodeString unicode(std::string_view text) {
    return icu::UnicodeString::fromUTF8({text.data(), static_cast<std::int32_t>(text.size())});
}

/// By the user's language. A program that is started without one sorts as most languages do.
std::unique_ptr<icu::Collator> makeCollator() {
    const icu::Locale& users = icu::Locale::getDefault();
    const bool isNone = std::string_view(users.getVariant()) == "POSIX";
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::Collator> collator(
        icu::Collator::createInstance(isNone ? icu::Locale::getRoot() : users, status));
    if (U_FAILURE(status)) return nullptr;
    collator->setStrength(icu::Collator::SECONDARY);
    return collator;
}

/// Bytes of the character that begins at a byte of the text; 0 if none does that is well-formed.
std::size_t characterLength(std::string_view text, std::size_t at) {
    const auto byteAt = [&](std::size_t place) { return static_cast<unsigned char>(text[place]); };
    const unsigned char lead = byteAt(at);
    if (lead < 0x80U) return 1;
    const std::size_t length = lead >= 0xF0U ? 4 : lead >= 0xE0U ? 3 : 2;
    if (lead < 0xC2U || lead > 0xF4U || at + length > text.size()) return 0;
    for (std::size_t i = 1; i < length; ++i) {
        if ((byteAt(at + i) & 0xC0U) != 0x80U) return 0;
    }
    // Overlong forms, surrogates, and what lies beyond the last plane.
    const unsigned char second = byteAt(at + 1);
    const bool wrong = (lead == 0xE0U && second < 0xA0U) || (lead == 0xEDU && second > 0x9FU) ||
                       (lead == 0xF0U && second < 0x90U) || (lead == 0xF4U && second > 0x8FU);
    return wrong ? 0 : length;
}

char32_t codeOf(std::string_view bytes) {
    const auto lead = static_cast<unsigned char>(bytes.front());
    if (bytes.size() == 1) return lead;
    char32_t code = lead & (0x7FU >> bytes.size());
    for (const char byte : bytes.substr(1))
        code = code << 6U | (static_cast<unsigned char>(byte) & 0x3FU);
    return code;
}

/// The parser of the library knows no plus.
std::string_view withoutPlus(std::string_view number) {
    const bool isPlain = number.starts_with('+') && !number.starts_with("+-");
    return isPlain ? number.substr(1) : number;
}

}  // namespace

std::string_view trim(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string lowerCase(std::string_view text) {
    std::string lowered(text);
    std::transform(lowered.begin(), lowered.end(), lowered.begin(), lower);
    return lowered;
}

std::string folded(std::string_view text) {
    std::string key;
    unicode(text).foldCase().toUTF8String(key);
    return key;
}

bool sameIgnoringCase(std::string_view left, std::string_view right) {
    if (isAscii(left) && isAscii(right)) {
        return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                          [](char a, char b) { return lower(a) == lower(b); });
    }
    return unicode(left).caseCompare(unicode(right), U_FOLD_CASE_DEFAULT) == 0;
}

std::string sortKey(std::string_view text) {
    static const std::unique_ptr<icu::Collator> collator = makeCollator();
    if (!collator) return lowerCase(text);
    const icu::UnicodeString sorted = unicode(text);
    const std::int32_t size = collator->getSortKey(sorted, nullptr, 0);
    std::string key(static_cast<std::size_t>(size), '\0');
    collator->getSortKey(sorted, reinterpret_cast<std::uint8_t*>(key.data()), size);
    return key;
}

std::vector<std::string> distinctNames(std::vector<std::string> names) {
    std::set<std::string> taken;
    for (const std::string& name : names) taken.insert(folded(name));
    std::map<std::string, int> seen;
    for (std::string& name : names) {
        int& number = seen[folded(name)];
        if (name.empty() || ++number == 1) continue;
        std::string distinct = name + " (" + std::to_string(number) + ")";
        while (!taken.insert(folded(distinct)).second)
            distinct = name + " (" + std::to_string(++number) + ")";
        name = std::move(distinct);
    }
    return names;
}

std::vector<std::string> linesOf(std::string_view text) {
    std::vector<std::string> lines;
    while (true) {
        const std::size_t end = text.find_first_of("\r\n");
        lines.emplace_back(text.substr(0, end));
        if (end == std::string_view::npos) return lines;
        text.remove_prefix(text.substr(end).starts_with("\r\n") ? end + 2 : end + 1);
    }
}

std::string replaceAll(std::string_view text, std::string_view what, std::string_view with) {
    std::string result;
    result.reserve(text.size());
    std::size_t from = 0;
    for (auto at = text.find(what); at != std::string_view::npos; at = text.find(what, from)) {
        result.append(text, from, at - from).append(with);
        from = at + what.size();
    }
    return result.append(text, from);
}

std::vector<Character> charactersOf(std::string_view text) {
    std::vector<Character> characters;
    characters.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); at += characters.back().bytes.size()) {
        const auto bytes = text.substr(at, std::max<std::size_t>(characterLength(text, at), 1));
        characters.push_back({bytes, codeOf(bytes)});
    }
    return characters;
}

std::size_t firstBadUtf8(std::string_view text) {
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t length = characterLength(text, at);
        if (length == 0) return at;
        at += length;
    }
    return std::string_view::npos;
}

double leadingNumber(std::string_view text) {
    std::string digits;
    for (const char c : text) {
        if (c == ' ' || c == '\t' || c == '\n') continue;
        // Words such as "inf" are no numbers here, whatever the parser below thinks of them.
        if (std::string_view("0123456789.eE+-").find(c) == std::string_view::npos) break;
        digits += c;
    }
    const std::string_view read = withoutPlus(digits);
    double number = 0;
    std::from_chars(read.data(), read.data() + read.size(), number);
    return number;
}

std::string addressWord(std::string_view text) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    constexpr std::string_view plain = "-._~";
    std::string word;
    for (const char c : text) {
        const bool isLetter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
        if (isLetter || (c >= '0' && c <= '9') || plain.find(c) != std::string_view::npos) {
            word += c;
        } else {
            const auto code = static_cast<unsigned char>(c);
            word += {'%', digits[code >> 4], digits[code & 15]};
        }
    }
    return word;
}

std::string linkWord(std::string_view text) {
    constexpr char32_t firstOfNone = 0xFFFE;
    std::string word;
    for (const auto& [bytes, code] : charactersOf(text)) {
        // Markup holds neither single bytes nor the two that stand for no character.
        const bool stays = bytes.size() > 1 && code != firstOfNone && code != firstOfNone + 1;
        word += stays ? std::string(bytes) : addressWord(bytes);
    }
    return word;
}

std::optional<double> numberOf(std::string_view text) {
    const std::string_view digits = withoutPlus(trim(text));
    if (digits.empty() || digits.find_first_not_of("0123456789.eE+-") != std::string_view::npos)
        return std::nullopt;
    double number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error != std::errc{} || end != digits.data() + digits.size()) return std::nullopt;
    return number;
}

std::string escapeMarkup(std::string_view text) {
    // One pass, so that the ampersand of an entity just written isn't escaped again.
    std::string escaped;
    escaped.reserve(text.size());
    for (const char sign : text) {
        switch (sign) {
            case '&':
                escaped += "&amp;";
                break;
            case '<':
                escaped += "&lt;";
                break;
            case '>':
                escaped += "&gt;";
                break;
            case '"':
                escaped += "&quot;";
                break;
            case '\'':
                escaped += "&#39;";
                break;
            default:
                escaped += sign;
        }
    }
    return escaped;
}

std::string userLanguage() {
    const std::string language = icu::Locale::getDefault().getLanguage();
    return language.empty() ? "en" : language;
}

}  // namespace office

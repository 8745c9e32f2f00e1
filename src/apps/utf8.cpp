#include "apps/utf8.h"

#include <algorithm>
#include <array>

#include "office/text.h"

namespace apps {

namespace {

using office::characterAt;
using office::characterLength;

struct CharacterRange {
    char32_t first;
    char32_t last;
};

constexpr std::array<CharacterRange, 4> markRanges = {
    {{0x0300, 0x036F}, {0x200B, 0x200F}, {0x20D0, 0x20FF}, {0xFE00, 0xFE0F}}};
constexpr std::array<CharacterRange, 9> wideRanges = {{{0x1100, 0x115F},
                                                       {0x2E80, 0xA4CF},
                                                       {0xAC00, 0xD7A3},
                                                       {0xF900, 0xFAFF},
                                                       {0xFE30, 0xFE6F},
                                                       {0xFF00, 0xFF60},
                                                       {0xFFE0, 0xFFE6},
                                                       {0x1F300, 0x1FAFF},
                                                       {0x20000, 0x3FFFD}}};

template <std::size_t count>
bool isIn(const std::array<CharacterRange, count>& ranges, char32_t character) {
    return std::any_of(ranges.begin(), ranges.end(), [&](const CharacterRange& range) {
        return character >= range.first && character <= range.last;
    });
}

std::size_t columnsOf(char32_t character) {
    if (isIn(markRanges, character)) return 0;
    return isIn(wideRanges, character) ? 2 : 1;
}

}  // namespace

std::size_t firstBadUtf8(std::string_view text) {
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t length = characterLength(text, at);
        if (length == 0) return at;
        at += length;
    }
    return std::string_view::npos;
}

std::size_t columnCount(std::string_view text) {
    std::size_t columns = 0;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t length = std::max<std::size_t>(1, characterLength(text, at));
        columns += columnsOf(characterAt(text, at));
        at += length;
    }
    return columns;
}

std::string printable(std::string_view text, std::string_view kept) {
    std::string shown;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t length = std::max<std::size_t>(1, characterLength(text, at));
        const std::string_view own = text.substr(at, length);
        const char32_t character = characterAt(text, at);
        const bool isControl = character < 0x20 || (character >= 0x7F && character < 0xA0);
        shown += isControl && kept.find(own) == std::string_view::npos ? " " : own;
        at += length;
    }
    return shown;
}

std::filesystem::path pathOf(std::string_view text) {
    return std::u8string(text.begin(), text.end());
}

std::string utf8Of(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

}  // namespace apps

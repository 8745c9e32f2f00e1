#include "apps/terminal_text.h"

#include <algorithm>
#include <array>

#include "office/text.h"

namespace apps {

namespace {

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

std::size_t columnCount(std::string_view text) {
    std::size_t columns = 0;
    for (const office::Character& each : office::charactersOf(text))
        columns += columnsOf(each.code);
    return columns;
}

std::string printable(std::string_view text, std::string_view kept) {
    std::string shown;
    for (const auto& [bytes, code] : office::charactersOf(text)) {
        const bool isControl = code < 0x20 || (code >= 0x7F && code < 0xA0);
        shown += isControl && kept.find(bytes) == std::string_view::npos ? " " : bytes;
    }
    return shown;
}

}  // namespace apps

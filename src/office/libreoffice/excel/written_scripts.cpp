#include "office/libreoffice/excel/written_scripts.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "office/text.h"

namespace libreoffice::excel {

namespace {

struct Block {
    std::uint32_t first;
    std::uint32_t last;
};

constexpr std::array<Block, 11> intricate = {{
    {0x0300, 0x036F},     // combining marks
    {0x0590, 0x109F},     // Hebrew to Myanmar
    {0x1100, 0x11FF},     // Hangul by its parts
    {0x1700, 0x1CFF},     // Philippine scripts to Vedic marks
    {0x200B, 0x200F},     // joiners and marks of direction
    {0x202A, 0x202E},     // embeddings
    {0x2060, 0x206F},     // isolates
    {0xA800, 0xABFF},     // further Indic scripts
    {0xFB00, 0xFDFF},     // ligatures, Arabic forms
    {0xFE00, 0xFEFF},     // choices of a shape, Arabic forms
    {0x10000, 0x10FFFF},  // emoji, and scripts of the past
}};

constexpr std::array<Block, 8> fromRight = {{
    {0x0590, 0x065F},    // Hebrew, Arabic as far as its digits
    {0x066A, 0x06EF},    // Arabic as far as Persian digits
    {0x06FA, 0x08FF},    // Arabic's extensions, Syriac, Thaana
    {0x200F, 0x200F},    // the mark of that direction
    {0xFB1D, 0xFDFF},    // Hebrew and Arabic forms
    {0xFE70, 0xFEFC},    // further Arabic forms
    {0x10800, 0x10FFF},  // scripts of the past
    {0x1E800, 0x1EFFF},  // scripts of Africa, Arabic letters of mathematics
}};

template <std::size_t count>
bool isIn(const std::array<Block, count>& blocks, char32_t code) {
    return std::any_of(blocks.begin(), blocks.end(), [&](const Block& block) {
        return code >= block.first && code <= block.last;
    });
}

}  // namespace

bool isIntricate(std::string_view text) {
    const auto characters = office::charactersOf(text);
    return std::any_of(characters.begin(), characters.end(),
                       [](const office::Character& one) { return isIn(intricate, one.code); });
}

bool beginsFromRight(std::string_view text) {
    constexpr std::size_t longestCharacter = 4;
    const auto begin = office::charactersOf(text.substr(0, longestCharacter));
    return !begin.empty() && isIn(fromRight, begin.front().code);
}

}  // namespace libreoffice::excel

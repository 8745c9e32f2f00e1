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

}  // namespace

bool isIntricate(std::string_view text) {
    const auto characters = office::charactersOf(text);
    return std::any_of(characters.begin(), characters.end(), [](const office::Character& one) {
        return std::any_of(intricate.begin(), intricate.end(), [&](const Block& block) {
            return one.code >= block.first && one.code <= block.last;
        });
    });
}

}  // namespace libreoffice::excel

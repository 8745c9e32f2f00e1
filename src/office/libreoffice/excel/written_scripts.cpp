#include "office/libreoffice/excel/written_scripts.h"

#include <algorithm>
#include <array>
#include <cstdint>

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

/// What follows the first byte of a character, in bits to the byte.
constexpr std::uint32_t continued = 6;

}  // namespace

bool isIntricate(std::string_view text) {
    std::uint32_t character = 0;
    const auto belongs = [&](const Block& block) {
        return character >= block.first && character <= block.last;
    };
    for (std::size_t i = 0; i < text.size();) {
        const auto byte = static_cast<std::uint8_t>(text[i++]);
        if (byte < 0x80) continue;
        character = byte >= 0xF0 ? byte & 0x07U : byte >= 0xE0 ? byte & 0x0FU : byte & 0x1FU;
        while (i < text.size() && (static_cast<std::uint8_t>(text[i]) & 0xC0U) == 0x80U)
            character = character << continued | (static_cast<std::uint8_t>(text[i++]) & 0x3FU);
        if (std::any_of(intricate.begin(), intricate.end(), belongs)) return true;
    }
    return false;
}

}  // namespace libreoffice::excel

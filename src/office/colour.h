#pragma once

#include <cstdint>
#include <string>

/// The object models write a colour as 0xBBGGRR; files, pages and LibreOffice have red first.
namespace office {

/// The same swap each way.
[[nodiscard]] constexpr std::int32_t swapRedAndBlue(std::int32_t colour) {
    return ((colour & 0xFF) << 16) | (colour & 0xFF00) | ((colour >> 16) & 0xFF);
}

/// As files have it, "RRGGBB", and back. A text that is none is black.
[[nodiscard]] std::string hexColour(std::int32_t colour);
[[nodiscard]] std::int32_t colourOfHex(const char* text);

/// As style sheets have it, "#rrggbb".
[[nodiscard]] std::string colourText(std::int32_t colour);

}  // namespace office

#pragma once

#include <cstdint>
#include <string>

namespace forms {

/// Lengths on forms: 1440 to the inch, 15 to a pixel of an unscaled screen.
using Twips = std::int32_t;
inline constexpr Twips twipsPerPixel = 15;

struct Place {
    Twips left = 0;
    Twips top = 0;
    Twips width = 0;
    Twips height = 0;
    bool operator==(const Place&) const = default;
};

struct Colour {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    bool operator==(const Colour&) const = default;

    /// From 0xRRGGBB, as style sheets write it.
    static constexpr Colour rgb(std::uint32_t value) {
        return {static_cast<std::uint8_t>(value >> 16U), static_cast<std::uint8_t>(value >> 8U),
                static_cast<std::uint8_t>(value)};
    }
    /// From 0xBBGGRR, as the object models keep it.
    static constexpr Colour bgr(std::uint32_t value) {
        return {static_cast<std::uint8_t>(value), static_cast<std::uint8_t>(value >> 8U),
                static_cast<std::uint8_t>(value >> 16U)};
    }
};

struct Font {
    std::string name = "Tahoma";
    double sizePt = 8.25;
    bool bold = false;
    bool operator==(const Font&) const = default;
};

}  // namespace forms

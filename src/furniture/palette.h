#pragma once

#include <string_view>

#include "forms/looks.h"

/// The colours of the dark theme.
namespace furniture::palette {

using forms::Colour;

inline constexpr Colour ThemeGround = Colour::rgb(0x111827);
/// `ThemeGround` as pages write it.
inline constexpr std::string_view ThemeGroundText = "#111827";
inline constexpr Colour ThemeGroundDeep = Colour::rgb(0x0b1422);
inline constexpr Colour ThemeTitleMid = {17, 28, 46};
inline constexpr Colour ThemeSurface = Colour::rgb(0x363231);
inline constexpr Colour ThemeField = Colour::rgb(0x363737);
inline constexpr Colour ThemeBarLine = Colour::rgb(0x555555);
inline constexpr Colour ThemeAccentButton = Colour::rgb(0xb8d6f8);
inline constexpr Colour ThemeNeutralButton = Colour::rgb(0xe2e8f0);
inline constexpr Colour ThemeQuietButton = Colour::rgb(0xf5f7fa);
inline constexpr Colour ThemeText = Colour::rgb(0xffffff);

}  // namespace furniture::palette

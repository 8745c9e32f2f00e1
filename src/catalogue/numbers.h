#pragma once

#include <cstdint>

/// Excel's own numbers for what several exports ask of it.
namespace catalogue::number {

/// What `CopyPicture` copies: as it is on the screen, by vectors or by pixels.
constexpr std::int32_t asOnScreen = 1;
constexpr std::int32_t pictureFormat = -4147;
constexpr std::int32_t bitmapFormat = 2;

}  // namespace catalogue::number

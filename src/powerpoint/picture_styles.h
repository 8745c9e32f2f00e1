#pragma once

#include <cstdint>

#include "office/value.h"

namespace powerpoint {

/// The ready-made looks, as `PictureStyle` numbers them.
namespace style {
inline constexpr std::int16_t none = 0;
inline constexpr std::int16_t shadowAllAround = 1;
inline constexpr std::int16_t shadow = 2;
inline constexpr std::int16_t roundedCorners = 3;
inline constexpr std::int16_t reflection = 4;
inline constexpr std::int16_t reflectionRounded = 5;
}  // namespace style

/// Gives a look to a shape. A setting that the shape refuses is skipped.
void ApplyPictureStyle(std::int16_t pictureStyle, const office::Object& shape);

}  // namespace powerpoint

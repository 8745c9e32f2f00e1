#pragma once

#include <cstdint>

#include "session/office_session.h"

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

/// Gives the look `PictureStyle` to a shape of the slide selected in the window; `shapeIndex`
/// counts from 1. A setting that the shape refuses is skipped. With `style::none` nothing happens.
void ApplyPictureStyle(session::OfficeSession& session, std::int16_t shapeIndex);

}  // namespace powerpoint

#pragma once

#include <cstdint>

namespace session {

/// The ready-made looks of what comes to slides, by their numbers.
enum class PictureLook : std::int16_t {
    None,
    ShadowAllAround,
    Shadow,
    RoundedCorners,
    Reflection,
    ReflectionRounded
};

}  // namespace session

#pragma once

#include <string>
#include <string_view>

#include "session/host.h"

namespace apps {

/// The file of another format that shows the same picture as a PNG file's bytes, of the same
/// density as far as the format has one. A PNG stays as it is. `office::Failure` 1004 if the bytes
/// are no picture, or one too large for the format.
[[nodiscard]] std::string imageFileOf(std::string_view png, session::ImageFormat format);

}  // namespace apps

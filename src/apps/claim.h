#pragma once

#include <string_view>

namespace apps {

/// Takes what one process of this user can have at a time, until this process ends, however that
/// comes about. False if there is one that has it.
[[nodiscard]] bool claim(std::string_view what);

}  // namespace apps

#pragma once

#include <string>
#include <string_view>

namespace office {

/// Temporary folders are named "murvane-of-PROCESS@HOST-XXXXXX": the disk may be one that machines
/// share, and the number of a process means something on its own machine alone.
inline constexpr std::string_view processFolderPrefix = "murvane-of-";

/// What stands behind the number.
[[nodiscard]] std::string hostMark();

/// The name as `mkdtemp` takes it.
[[nodiscard]] std::string processFolderPattern();

}  // namespace office

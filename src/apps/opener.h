#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

/// The desktop's own program that finds the right one for a file or an address. It is started
/// without a shell and without the variables of the environment that are named, says nothing on the
/// terminal, and what it starts outlives this process.
namespace apps {

/// Whether a program was found for it. Some seconds go by until that is known; `pause` lets so many
/// milliseconds pass.
[[nodiscard]] bool opens(const std::string& target,
                         const std::vector<std::string>& withoutVariables,
                         const std::function<void(std::uint32_t ms)>& pause);

}  // namespace apps

#pragma once

#include <string>
#include <string_view>

/// The private links by which a page tells its form what was clicked. Each function gives the key
/// behind its prefix in the case it came in, or nothing for any other address. The prefix counts
/// wherever it stands and in any case; what follows a "?" or a "#" is no part of the key.
namespace panels {

/// "murvane://action/" + key
[[nodiscard]] std::string ActionKeyFromUrl(std::string_view url);
/// "murvane://toggle/" + key
[[nodiscard]] std::string ToggleKeyFromUrl(std::string_view url);
/// "murvane://select/" + group + "/" + key: group and key as they stand, with the slash.
[[nodiscard]] std::string SelectKeyFromUrl(std::string_view url);

/// The key of a toggle link; `cancel` becomes true if there is one and stays as it is if not.
[[nodiscard]] std::string CancelIfToggle(std::string_view url, bool& cancel);

}  // namespace panels

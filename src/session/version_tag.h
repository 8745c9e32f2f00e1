#pragma once

#include <string>
#include <string_view>

namespace session {

/// The part of an application's version ahead of its first ".": "16" for "16.0".
[[nodiscard]] inline std::string versionTag(std::string_view version) {
    return std::string(version.substr(0, version.find('.')));
}

}  // namespace session

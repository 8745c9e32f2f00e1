#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace office {

/// A path as the system has it, from UTF-8, and back: `path::string` is another encoding elsewhere.
[[nodiscard]] std::filesystem::path pathOf(std::string_view text);
[[nodiscard]] std::string utf8Of(const std::filesystem::path& path);

/// All of a file; nothing where it isn't there or can't be read.
[[nodiscard]] std::optional<std::string> bytesOf(const std::filesystem::path& file);

}  // namespace office

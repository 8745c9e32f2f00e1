#pragma once

#include <filesystem>
#include <string>

namespace office {

/// The address of a file, with the characters escaped that an address can't hold: relative to a
/// folder ("../Sales%202026.xlsx"), or whole if that is empty or no path leads from it to the file
/// ("file:///home/ann/Sales%202026.xlsx").
[[nodiscard]] std::string fileAddress(const std::filesystem::path& file,
                                      const std::filesystem::path& base = {});
/// The same as a link in an Office document leads there, its names spelled by `linkWord`.
[[nodiscard]] std::string linkAddress(const std::filesystem::path& file,
                                      const std::filesystem::path& base = {});

}  // namespace office

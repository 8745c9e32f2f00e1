#pragma once

#include <sys/stat.h>

#include <filesystem>

namespace unattended {

/// Whether a file could be made, empty, where there was none.
bool madeFile(const std::filesystem::path& path, mode_t mode);

/// A temporary file or folder `made` may be made for its owner alone; the output gets the mode of
/// what it replaces, or that of any new file or folder, found out in the folder `draft`.
void adoptMode(const std::filesystem::path& made, const std::filesystem::path& replaced,
               const std::filesystem::path& draft);

}  // namespace unattended

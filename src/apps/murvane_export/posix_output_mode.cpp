#include <fcntl.h>
#include <unistd.h>

#include <optional>
#include <system_error>

#include "apps/murvane_export/output_mode.h"

namespace unattended {

namespace fs = std::filesystem;

bool madeFile(const fs::path& path, mode_t mode) {
    const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
    if (file >= 0) ::close(file);
    return file >= 0;
}

namespace {

/// The mode that a new file or folder gets at a place, found out by making one: the user's mask
/// decides, or the rules of a folder that is shared.
std::optional<mode_t> modeOfNew(const fs::path& sample, bool isFolder) {
    const mode_t all = isFolder ? 0777 : 0666;
    const bool isMade = isFolder ? ::mkdir(sample.c_str(), all) == 0 : madeFile(sample, all);
    struct stat status = {};
    if (!isMade || ::stat(sample.c_str(), &status) != 0) return std::nullopt;
    std::error_code ignored;
    fs::remove(sample, ignored);
    return status.st_mode & 07777U;
}

/// The mode of a file that is replaced, and its group, so that those who shared it still do. Where
/// the group can't be had, another one may no more than everybody.
mode_t modeAndGroupOf(const struct stat& replaced, const fs::path& made) {
    const mode_t mode = replaced.st_mode & 07777U;
    struct stat now = {};
    const bool isOfGroup = ::stat(made.c_str(), &now) != 0 || now.st_gid == replaced.st_gid;
    if (isOfGroup || ::chown(made.c_str(), static_cast<uid_t>(-1), replaced.st_gid) == 0)
        return mode;
    return (mode & ~070U) | ((mode & 07U) << 3U);
}

}  // namespace

void adoptMode(const fs::path& made, const fs::path& replaced, const fs::path& draft) {
    struct stat before = {};
    std::error_code ignored;
    const bool isFolder = fs::is_directory(made, ignored);
    const bool replaces = !isFolder && ::stat(replaced.c_str(), &before) == 0;
    const std::optional<mode_t> mode =
        replaces ? modeAndGroupOf(before, made) : modeOfNew(draft / "sample", isFolder);
    // A file system without modes takes none, and needs none.
    if (mode) static_cast<void>(::chmod(made.c_str(), *mode));
}

}  // namespace unattended

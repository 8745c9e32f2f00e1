#include "office/libreoffice/profile.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <utility>

#include "office/failure.h"

namespace libreoffice {

namespace {

std::filesystem::path profilesFolder() {
    if (const char* cache = std::getenv("XDG_CACHE_HOME"); cache != nullptr && *cache == '/') {
        return std::filesystem::path(cache) / "murvane";
    }
    if (const char* home = std::getenv("HOME"); home != nullptr && *home == '/') {
        return std::filesystem::path(home) / ".cache/murvane";
    }
    return fmt::format("/var/tmp/murvane-{}", getuid());
}

constexpr int mostAtATime = 64;

}  // namespace

Profile Profile::acquire() {
    const std::filesystem::path parent = profilesFolder();
    std::error_code error;
    std::filesystem::create_directories(parent, error);
    chmod(parent.c_str(), S_IRWXU);
    for (int number = 1; number <= mostAtATime; ++number) {
        const std::string folder = (parent / fmt::format("suite-{}", number)).string();
        const std::string lockFile = folder + ".lock";
        const int lock =
            open(lockFile.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR);
        if (lock < 0) break;
        if (flock(lock, LOCK_EX | LOCK_NB) == 0) return {folder, lock};
        close(lock);
    }
    throw office::Failure(
        office::FailureNumber::PathFileAccess, "Profile.acquire",
        fmt::format("No folder for the suite's profile can be made in \"{}\"", parent.string()));
}

Profile::Profile(std::string folder, int lock) : folder_(std::move(folder)), lock_(lock) {}

Profile::Profile(Profile&& other) noexcept
    : folder_(std::move(other.folder_)),
      lock_(std::exchange(other.lock_, -1)) {}

Profile::~Profile() {
    if (lock_ >= 0) close(lock_);
}

}  // namespace libreoffice

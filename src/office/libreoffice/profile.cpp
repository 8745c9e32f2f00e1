#include "office/libreoffice/profile.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <string_view>
#include <utility>
#include <vector>

#include "office/failure.h"
#include "office/files.h"

namespace libreoffice {

namespace {

/// The best one first. A service may run with a home that isn't there or that it can't write to.
std::vector<std::filesystem::path> profilesFolders() {
    std::vector<std::filesystem::path> folders;
    const auto addBelow = [&](const char* variable, const char* way) {
        if (const char* folder = std::getenv(variable); folder != nullptr && *folder == '/')
            folders.push_back(std::filesystem::path(folder) / way);
    };
    addBelow("XDG_CACHE_HOME", "murvane");
    addBelow("HOME", ".cache/murvane");
    folders.emplace_back(fmt::format("/var/tmp/murvane-{}", getuid()));
    return folders;
}

/// Where anybody may plant a folder, one of another user's would show him our documents.
bool isOurs(const std::filesystem::path& folder) {
    struct stat link {};
    struct stat target {};
    return lstat(folder.c_str(), &link) == 0 && stat(folder.c_str(), &target) == 0 &&
           S_ISDIR(target.st_mode) && link.st_uid == getuid() && target.st_uid == getuid() &&
           chmod(folder.c_str(), S_IRWXU) == 0;
}

constexpr int mostAtATime = 64;

/// What Murvane's own suite does otherwise than the user's. It writes no lock beside a document: it
/// never saves over one, so it may read what the user has open, and a killed run leaves nothing.
/// The panels at the side (10336), which nobody sees, would follow each selection.
constexpr std::string_view settings = R"(<?xml version="1.0" encoding="UTF-8"?>
<oor:items xmlns:oor="http://openoffice.org/2001/registry" xmlns:xs="http://www.w3.org/2001/XMLSchema" xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance">
<item oor:path="/org.openoffice.Office.Common/Misc"><prop oor:name="UseLocking" oor:op="fuse"><value>false</value></prop></item>
<item oor:path="/org.openoffice.Office.Common/Misc"><prop oor:name="UseDocumentOOoLockFile" oor:op="fuse"><value>false</value></prop></item>
<item oor:path="/org.openoffice.Office.Common/Misc"><prop oor:name="UseDocumentSystemFileLocking" oor:op="fuse"><value>false</value></prop></item>
<item oor:path="/org.openoffice.Office.Common/Misc"><prop oor:name="FirstRun" oor:op="fuse"><value>false</value></prop></item>
<item oor:path="/org.openoffice.Office.Views/Windows"><node oor:name="scalc/10336" oor:op="replace"><node oor:name="UserData"><prop oor:name="Data" oor:op="fuse" oor:type="xs:string"><value>V2,H,0</value></prop></node></node></item>
<item oor:path="/org.openoffice.Office.Views/Windows"><node oor:name="simpress/10336" oor:op="replace"><node oor:name="UserData"><prop oor:name="Data" oor:op="fuse" oor:type="xs:string"><value>V2,H,0</value></prop></node></node></item>
<item oor:path="/org.openoffice.Office.Views/Windows"><node oor:name="swriter/10336" oor:op="replace"><node oor:name="UserData"><prop oor:name="Data" oor:op="fuse" oor:type="xs:string"><value>V2,H,0</value></prop></node></node></item>
<item oor:path="/org.openoffice.Office.Recovery/AutoSave"><prop oor:name="Enabled" oor:op="fuse"><value>false</value></prop></item>
</oor:items>
)";

/// A folder that is new, or that a version with other settings has left, gets these, whole or not
/// at all; the suite keeps them when it writes its own beside them.
bool prepare(const std::filesystem::path& folder) {
    const std::filesystem::path file = folder / "user/registrymodifications.xcu";
    const std::filesystem::path given = folder / "user/settings.given";
    const std::filesystem::path draft = folder / "user/settings.draft";
    std::error_code error;
    if (std::filesystem::exists(file, error) && office::bytesOf(given) == settings) return true;
    std::filesystem::create_directories(file.parent_path(), error);
    const auto write = [](const std::filesystem::path& path) {
        std::ofstream written(path);
        written << settings;
        written.close();
        return static_cast<bool>(written);
    };
    if (write(draft)) {
        std::filesystem::rename(draft, file, error);
        if (!error) {
            // Without it they are given once more the next time.
            static_cast<void>(write(given));
            return true;
        }
    }
    std::filesystem::remove(draft, error);
    return false;
}

}  // namespace

std::optional<Profile> Profile::acquireIn(const std::filesystem::path& parent) {
    std::error_code error;
    std::filesystem::create_directories(parent, error);
    if (!isOurs(parent)) return std::nullopt;
    for (int number = 1; number <= mostAtATime; ++number) {
        const std::string folder = (parent / fmt::format("suite-{}", number)).string();
        const std::string lockFile = folder + ".lock";
        const int lock =
            open(lockFile.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR);
        if (lock < 0) break;
        if (flock(lock, LOCK_EX | LOCK_NB) == 0) {
            if (prepare(folder)) return Profile(folder, lock);
            close(lock);
            break;
        }
        close(lock);
    }
    return std::nullopt;
}

Profile Profile::acquire() {
    const auto parents = profilesFolders();
    for (const auto& parent : parents) {
        if (auto profile = acquireIn(parent)) return std::move(*profile);
    }
    throw office::Failure(
        office::FailureNumber::PathFileAccess, "Profile.acquire",
        fmt::format("No folder for the suite's profile can be made in \"{}\". Let "
                    "XDG_CACHE_HOME name a folder that can be written to",
                    parents.front().string()));
}

Profile::Profile(std::string folder, int lock) : folder_(std::move(folder)), lock_(lock) {}

Profile::Profile(Profile&& other) noexcept
    : folder_(std::move(other.folder_)),
      lock_(std::exchange(other.lock_, -1)) {}

Profile::~Profile() {
    if (lock_ >= 0) close(lock_);
}

}  // namespace libreoffice

#include <fmt/format.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <cstdlib>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <vector>

#include "apps/process_folder.h"

namespace apps {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view privateStart = "murvane-of-";
constexpr std::string_view draftStart = ".murvane-of-";

/// What stands behind the number of the process: a draft may lie on a disk that machines share, and
/// the number means something on its own alone.
std::string markBehind(std::string_view start) {
    constexpr std::size_t longest = 256;
    char host[longest] = {};
    if (start == privateStart || ::gethostname(host, longest - 1) != 0) return "-";
    return fmt::format("@{}-", host);
}

/// Whether a folder's name says that it belongs to a process which has ended.
bool isOrphan(const std::string& name) {
    const std::string_view start = name.starts_with('.') ? draftStart : privateStart;
    if (!name.starts_with(start)) return false;
    int owner = 0;
    const char* const last = name.data() + name.size();
    const auto [end, error] = std::from_chars(name.data() + start.size(), last, owner);
    if (error != std::errc{} || owner <= 0) return false;
    if (!std::string_view(end, last).starts_with(markBehind(start))) return false;
    return ::kill(owner, 0) != 0 && errno == ESRCH;
}

/// Takes away what runs of this user have left that were killed.
void sweep(const std::string& parent) {
    std::error_code error;
    std::vector<fs::path> orphans;
    for (const auto& entry : fs::directory_iterator(parent, error)) {
        struct stat status = {};
        if (!isOrphan(entry.path().filename().string())) continue;
        const bool isOwn = ::lstat(entry.path().c_str(), &status) == 0 && S_ISDIR(status.st_mode) &&
                           status.st_uid == ::geteuid();
        if (isOwn) orphans.push_back(entry.path());
    }
    for (const fs::path& orphan : orphans) fs::remove_all(orphan, error);
}

std::string makeOne(const std::string& parent, std::string_view start) {
    std::string path = fmt::format("{}/{}{}{}XXXXXX", parent, start, ::getpid(), markBehind(start));
    if (::mkdtemp(path.data()) == nullptr) return {};
    sweep(parent);
    return path;
}

}  // namespace

std::string makePrivateFolder(const std::string& parent) {
    std::string path = makeOne(parent, privateStart);
    if (path.empty()) return {};
    // The work with an office suite has folders of the same names: where the environment says or,
    // if none can be made there, in the system's own place.
    constexpr const char* ofSystem = "/tmp";
    std::error_code error;
    const fs::path named = fs::temp_directory_path(error);
    if (!error && named != ofSystem) sweep(named.string());
    sweep(ofSystem);
    return path;
}

std::string makeDraftFolder(const std::string& parent) {
    return makeOne(parent, draftStart);
}

void sweepDraftFolders(const std::string& parent) {
    sweep(parent);
}

}  // namespace apps

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
#include "office/process_folder_name.h"

namespace apps {

namespace {

namespace fs = std::filesystem;

/// Whether a folder's name says that it belongs to a process which has ended.
bool isOrphan(const std::string& name) {
    std::string_view rest = name;
    if (rest.starts_with('.')) rest.remove_prefix(1);
    if (!rest.starts_with(office::processFolderPrefix)) return false;
    rest.remove_prefix(office::processFolderPrefix.size());
    int owner = 0;
    const char* const last = rest.data() + rest.size();
    const auto [end, error] = std::from_chars(rest.data(), last, owner);
    if (error != std::errc{} || owner <= 0) return false;
    if (!std::string_view(end, last).starts_with(office::hostMark())) return false;
    return ::kill(owner, 0) != 0 && errno == ESRCH;
}

/// Takes away what runs of this user have left that were killed.
void sweep(const std::string& parent) {
    std::error_code error;
    std::vector<fs::path> orphans;
    for (auto each = fs::directory_iterator(parent, error);
         !error && each != fs::directory_iterator(); each.increment(error)) {
        const fs::path& path = each->path();
        struct stat status = {};
        if (!isOrphan(path.filename().string())) continue;
        const bool isOwn = ::lstat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode) &&
                           status.st_uid == ::geteuid();
        if (isOwn) orphans.push_back(path);
    }
    for (const fs::path& orphan : orphans) fs::remove_all(orphan, error);
}

std::string makeOne(const std::string& parent, const char* before) {
    std::string path = fmt::format("{}/{}{}", parent, before, office::processFolderPattern());
    if (::mkdtemp(path.data()) == nullptr) return {};
    sweep(parent);
    return path;
}

}  // namespace

std::string makePrivateFolder(const std::string& parent) {
    std::string path = makeOne(parent, "");
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
    return makeOne(parent, ".");
}

void sweepDraftFolders(const std::string& parent) {
    sweep(parent);
}

}  // namespace apps

#include "apps/posix_host.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <signal.h>
#include <spawn.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <system_error>
#include <thread>
#include <vector>

#include "office/failure.h"
#include "session/file_names.h"

namespace apps {

namespace {

namespace fs = std::filesystem;
using office::Failure;
using office::FailureNumber;

/// Closes itself.
class OpenFile {
public:
    explicit OpenFile(int file) : file_(file) {}
    ~OpenFile() {
        if (isOpen()) ::close(file_);
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    [[nodiscard]] bool isOpen() const { return file_ >= 0; }

    [[nodiscard]] bool isLockedByOther() const {
        struct flock lock = {};
        lock.l_type = F_WRLCK;
        lock.l_whence = SEEK_SET;
        return ::fcntl(file_, F_GETLK, &lock) == 0 && lock.l_type != F_UNLCK;
    }

    [[nodiscard]] bool takes(std::string_view text) const {
        while (!text.empty()) {
            const ssize_t written = ::write(file_, text.data(), text.size());
            if (written < 0 && errno == EINTR) continue;
            if (written <= 0) return false;
            text.remove_prefix(static_cast<std::size_t>(written));
        }
        return true;
    }

private:
    int file_;
};

constexpr std::string_view folderStart = "murvane-of-";

/// Whether a folder's name says that it belongs to a process which has ended.
bool isOrphan(const fs::path& folder) {
    const std::string name = folder.filename().string();
    int owner = 0;
    if (!name.starts_with(folderStart)) return false;
    const char* const number = name.data() + folderStart.size();
    const auto [end, error] = std::from_chars(number, name.data() + name.size(), owner);
    if (error != std::errc{} || *end != '-' || owner <= 0) return false;
    return ::kill(owner, 0) != 0 && errno == ESRCH;
}

/// Takes away what runs of this user have left that were killed.
void sweep(const std::string& parent) {
    std::error_code error;
    std::vector<fs::path> orphans;
    for (const auto& entry : fs::directory_iterator(parent, error)) {
        struct stat status = {};
        const bool isOwn = ::lstat(entry.path().c_str(), &status) == 0 && S_ISDIR(status.st_mode) &&
                           status.st_uid == ::geteuid();
        if (isOwn && isOrphan(entry.path())) orphans.push_back(entry.path());
    }
    for (const fs::path& orphan : orphans) fs::remove_all(orphan, error);
}

/// The folder's name tells its process, so that a later one knows whether it is still in use.
std::string makePrivateFolder(const std::string& parent) {
    std::string path = fmt::format("{}/{}{}-XXXXXX", parent, folderStart, ::getpid());
    // mkdtemp makes it for this user alone.
    if (::mkdtemp(path.data()) == nullptr) return {};
    sweep(parent);
    // An office suite's pictures pass through folders of the same names here.
    std::error_code ignored;
    sweep(fs::temp_directory_path(ignored).string());
    return path;
}

}  // namespace

PosixHost::~PosixHost() {
    if (!privateFolder_) return;
    std::error_code ignored;
    fs::remove_all(*privateFolder_, ignored);
}

std::uint32_t PosixHost::tickCount() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<std::uint32_t>(
        std::chrono::duration_cast<std::chrono::milliseconds>(now).count());
}

void PosixHost::sleep(std::uint32_t milliseconds) {
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

std::optional<std::string> PosixHost::environment(std::string_view name) {
    const char* value = std::getenv(std::string(name).c_str());
    if (value == nullptr || *value == '\0') return std::nullopt;
    return value;
}

const std::string& PosixHost::privateFolder() {
    if (privateFolder_) return *privateFolder_;
    for (const char* variable : {"XDG_RUNTIME_DIR", "TMPDIR"}) {
        const auto parent = environment(variable);
        const std::string made = parent ? makePrivateFolder(*parent) : std::string();
        if (!made.empty()) return privateFolder_.emplace(made);
    }
    const std::string made = makePrivateFolder("/tmp");
    if (made.empty()) {
        throw Failure(FailureNumber::PathFileAccess, "Host.temporaryFile",
                      "No folder for temporary files can be made: neither in XDG_RUNTIME_DIR nor "
                      "in TMPDIR nor in /tmp");
    }
    return privateFolder_.emplace(made);
}

std::string PosixHost::temporaryFile(std::string_view fileName) {
    session::requireFileName(fileName);
    const auto folder = environment("TEMP");
    return (folder ? *folder : privateFolder()) + "/" + std::string(fileName);
}

std::string PosixHost::writeTemporaryFile(std::string_view fileName, std::string_view text) {
    std::string path = temporaryFile(fileName);
    // A neighbour, for this user alone, that then takes the name: whole, and without following a
    // link.
    std::string neighbour = path + ".XXXXXX";
    bool isWritten = false;
    {
        const OpenFile file(::mkostemp(neighbour.data(), O_CLOEXEC));
        isWritten = file.isOpen() && file.takes(text);
    }
    if (isWritten && std::rename(neighbour.c_str(), path.c_str()) == 0) return path;
    const std::string reason = std::strerror(errno);
    ::unlink(neighbour.c_str());
    throw Failure(FailureNumber::PathFileAccess, "Host.writeTemporaryFile",
                  path + " can't be written: " + reason);
}

void PosixHost::deleteFile(std::string_view path) {
    const std::string file(path);
    if (::unlink(file.c_str()) == 0) return;
    const bool isMissing = errno == ENOENT;
    throw Failure(isMissing ? FailureNumber::FileNotFound : FailureNumber::PermissionDenied,
                  "Host.deleteFile",
                  isMissing ? "File not found: " + file : "File can't be deleted: " + file);
}

bool PosixHost::fileExists(std::string_view path) {
    std::error_code ignored;
    return fs::is_regular_file(fs::path(path), ignored);
}

bool PosixHost::fileIsHeld(std::string_view path) {
    const fs::path file(path);
    const OpenFile opened(::open(file.c_str(), O_RDONLY | O_CLOEXEC));
    if (!opened.isOpen() || opened.isLockedByOther()) return true;
    // The suites of this platform keep a file of this name beside an open document.
    const fs::path mark = file.parent_path() / (".~lock." + file.filename().string() + "#");
    std::error_code ignored;
    return fs::exists(mark, ignored);
}

void PosixHost::openLink(std::string_view address) {
    std::string command = "xdg-open";
    std::string target(address);
    char* const arguments[] = {command.data(), target.data(), nullptr};
    pid_t process = 0;
    // The browser goes on for itself; whether it came up is nobody's concern.
    ::posix_spawnp(&process, command.c_str(), nullptr, nullptr, arguments, environ);
}

void PosixHost::messageBox(std::string_view text, std::string_view title) {
    console_.writeError(std::string(title) + ": " + std::string(text) + "\n");
}

}  // namespace apps

#include "apps/posix_host.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <system_error>
#include <thread>
#include <utility>

#include "apps/image_file.h"
#include "apps/opener.h"
#include "apps/process_folder.h"
#include "apps/whole_file.h"
#include "office/failure.h"
#include "office/files.h"
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

private:
    int file_;
};

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

session::LocalTime PosixHost::localTime() {
    const std::time_t now = std::time(nullptr);
    struct tm parts = {};
    ::localtime_r(&now, &parts);
    return {parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday,
            parts.tm_hour,        parts.tm_min,     parts.tm_sec};
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
    for (const char* variable : {"TEMP", "XDG_RUNTIME_DIR", "TMPDIR"}) {
        const auto parent = environment(variable);
        const std::string made = parent ? makePrivateFolder(*parent) : std::string();
        if (!made.empty()) return privateFolder_.emplace(made);
    }
    const std::string made = makePrivateFolder("/tmp");
    if (made.empty()) {
        throw Failure(FailureNumber::PathFileAccess, "Host.temporaryFile",
                      "No folder for temporary files can be made: neither in TEMP nor in "
                      "XDG_RUNTIME_DIR nor in TMPDIR nor in /tmp");
    }
    return privateFolder_.emplace(made);
}

std::string PosixHost::temporaryFile(std::string_view fileName) {
    session::requireFileName(fileName);
    return privateFolder() + "/" + std::string(fileName);
}

std::string PosixHost::writeTemporaryFile(std::string_view fileName, std::string_view text) {
    std::string path = temporaryFile(fileName);
    writeWhole(path, text, Readers::User);
    return path;
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

std::string PosixHost::readFile(std::string_view path) {
    if (!fileExists(path)) {
        throw Failure(FailureNumber::FileNotFound, "Host.readFile",
                      "File not found: " + std::string(path));
    }
    auto bytes = office::bytesOf(path);
    if (!bytes) {
        throw Failure(FailureNumber::PathFileAccess, "Host.readFile",
                      "File can't be read: " + std::string(path));
    }
    return std::move(*bytes);
}

std::string PosixHost::helpFolder() {
    std::error_code ignored;
    const fs::path programs = fs::read_symlink("/proc/self/exe", ignored).parent_path();
    const fs::path beside = programs / "help";
    if (fs::is_directory(beside, ignored)) return beside.string();
    return (programs.parent_path() / "share" / "murvane" / "help").string();
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

bool PosixHost::pathExists(std::string_view path) {
    struct stat ignored = {};
    return ::lstat(std::string(path).c_str(), &ignored) == 0;
}

std::vector<std::string> PosixHost::namesIn(std::string_view folder) {
    std::vector<std::string> names;
    std::error_code problem;
    for (auto each = fs::directory_iterator(fs::path(folder), problem);
         !problem && each != fs::directory_iterator(); each.increment(problem))
        names.push_back(each->path().filename().string());
    return names;
}

std::string PosixHost::outputFolder(std::string_view name) {
    session::requireFileName(name);
    const auto home = environment("HOME");
    if (home) return *home + "/" + std::string(name);
    const struct passwd* const user = ::getpwuid(::geteuid());
    return std::string(user == nullptr ? "/tmp" : user->pw_dir) + "/" + std::string(name);
}

void PosixHost::makeFolder(std::string_view path) {
    apps::makeFolder(std::string(path));
}

void PosixHost::removeFolder(std::string_view path) {
    std::error_code ignored;
    fs::remove_all(fs::path(path), ignored);
}

std::string PosixHost::makeDraftFolder(std::string_view parent) {
    std::string path = apps::makeDraftFolder(std::string(parent));
    if (path.empty()) failIn(std::string(parent), "written to", errno);
    return path;
}

void PosixHost::moveTo(std::string_view from, std::string_view place) {
    const std::string to(place);
    if (const int error = giveName(std::string(from), to, false); error != 0)
        failIn(to, "written", error);
}

bool PosixHost::folderCanBeWrittenTo(std::string_view path) {
    return takesFiles(std::string(path));
}

void PosixHost::writeFile(std::string_view path, std::string_view text) {
    writeWhole(std::string(path), text, Readers::Everybody);
}

void PosixHost::writeImage(std::string_view png, session::ImageFormat format,
                           std::string_view path) {
    writeWhole(std::string(path), imageFileOf(png, format), Readers::Everybody);
}

bool PosixHost::openLink(std::string_view address) {
    return openWithItsProgram(std::string(address));
}

bool PosixHost::openFile(std::string_view path) {
    return pathExists(path) && openWithItsProgram(fs::absolute(fs::path(path)).string());
}

bool PosixHost::openWithItsProgram(const std::string& target) {
    return opens(target, ownVariables(), [this](std::uint32_t ms) {
        letEventsRun();
        sleep(ms);
    });
}

void PosixHost::messageBox(std::string_view text, std::string_view title) {
    console_.writeError(fmt::format("{}{}{}\n", title, title.empty() ? "" : ": ", text));
}

}  // namespace apps

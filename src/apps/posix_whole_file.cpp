#include <fcntl.h>
#include <fmt/format.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <system_error>
#include <utility>

#include "apps/whole_file.h"
#include "office/failure.h"

namespace apps {

namespace {

namespace fs = std::filesystem;
using office::Failure;
using office::FailureNumber;

/// A new file with a name of its own, which goes again unless it takes another one.
class Neighbour {
public:
    Neighbour(const std::string& folder, Readers readers) {
        // The user's mask decides who reads it, as with any other new file.
        const mode_t mode = readers == Readers::User ? 0600 : 0666;
        constexpr int attempts = 1000;
        for (int i = 0; file_ < 0 && i < attempts; ++i) {
            path_ = fmt::format("{}/.murvane-{}-{}", folder, ::getpid(), i);
            file_ = ::open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
            if (file_ < 0 && errno != EEXIST) break;
        }
        isThere_ = file_ >= 0;
    }
    ~Neighbour() {
        if (file_ >= 0) ::close(file_);
        if (isThere_) ::unlink(path_.c_str());
    }
    Neighbour(const Neighbour&) = delete;
    Neighbour& operator=(const Neighbour&) = delete;

    /// Each of these leaves its reason in `errno` where it fails.
    [[nodiscard]] bool isOpen() const { return file_ >= 0; }

    [[nodiscard]] bool takes(std::string_view text) {
        while (!text.empty()) {
            const ssize_t written = ::write(file_, text.data(), text.size());
            if (written < 0 && errno == EINTR) continue;
            if (written <= 0) return false;
            text.remove_prefix(static_cast<std::size_t>(written));
        }
        // Some file systems find out only now that there is no room.
        return ::close(std::exchange(file_, -1)) == 0;
    }

    [[nodiscard]] bool takesName(const std::string& path) {
        if (std::rename(path_.c_str(), path.c_str()) != 0) return false;
        isThere_ = false;
        return true;
    }

private:
    std::string path_;
    int file_ = -1;
    bool isThere_ = false;
};

std::string folderOf(const std::string& path) {
    const std::string folder = fs::path(path).parent_path().string();
    return folder.empty() ? "." : folder;
}

[[noreturn]] void fail(const std::string& path, const char* what, const std::string& reason) {
    throw Failure(FailureNumber::PathFileAccess, "Host",
                  fmt::format("{} can't be {}: {}", path, what, reason));
}

}  // namespace

void writeWhole(const std::string& path, std::string_view text, Readers readers) {
    Neighbour neighbour(folderOf(path), readers);
    if (neighbour.isOpen() && neighbour.takes(text) && neighbour.takesName(path)) return;
    fail(path, "written", std::strerror(errno));
}

int giveName(const std::string& from, const std::string& to, bool replaces) {
    const auto rename = [&](unsigned flags) {
        const bool isDone = ::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), flags) == 0;
        return isDone ? 0 : errno;
    };
    const int error = rename(replaces ? 0 : RENAME_NOREPLACE);
    if (error != EINVAL || replaces) return error;
    // Some file systems can't rename without replacing. There a file has both names for a moment; a
    // folder replaces an empty one alone.
    if (::link(from.c_str(), to.c_str()) == 0) return ::unlink(from.c_str()) == 0 ? 0 : errno;
    return errno == EPERM ? rename(0) : errno;
}

void flush(const std::string& path) {
    const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0) return;
    ::fsync(file);
    ::close(file);
}

void failIn(const std::string& path, const char* what, int error) {
    fail(path, what, std::strerror(error));
}

bool takesFiles(const std::string& folder) {
    const Neighbour probe(folder, Readers::User);
    return probe.isOpen();
}

void makeFolder(const std::string& path) {
    std::error_code error;
    fs::create_directories(path, error);
    std::error_code ignored;
    if (fs::is_directory(path, ignored)) return;
    fail(path, "made", error ? error.message() : "a file is in the way");
}

}  // namespace apps

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <system_error>

#include "apps/murvane_export/errors.h"
#include "apps/murvane_export/output_file.h"
#include "apps/utf8.h"
#include "apps/whole_file.h"
#include "office/text.h"

namespace unattended {

namespace {

namespace fs = std::filesystem;

constexpr std::array<std::string_view, 2> extensions = {".pptx", ".pptm"};

/// The file itself where the name is a link to it, so that replacing it leaves the link alone.
fs::path behindLinks(const fs::path& file) {
    std::error_code ignored;
    const fs::path absolute = fs::absolute(file, ignored);
    return fs::is_symlink(absolute, ignored) ? fs::weakly_canonical(absolute, ignored) : absolute;
}

std::string reason() {
    return std::strerror(errno);
}

std::string extensionOf(const fs::path& file) {
    return office::lowerCase(apps::utf8Of(file.extension()));
}

}  // namespace

void requireReadable(const fs::path& file, const std::string& what) {
    std::error_code ignored;
    if (fs::is_directory(file, ignored)) {
        throw UsageError(
            fmt::format("The {} {} is a folder. Name the file itself.", what, apps::utf8Of(file)));
    }
    if (::access(file.c_str(), R_OK) == 0) return;
    throw UsageError(fmt::format("The {} {} can't be read: {}. Check its name and its permissions.",
                                 what, apps::utf8Of(file), reason()));
}

OutputFile::OutputFile(const fs::path& file, IfExists ifExists)
    : file_(behindLinks(file)),
      ifExists_(ifExists) {
    const std::string name = apps::utf8Of(file);
    const auto refuse = [&](const std::string& why) {
        throw UsageError(fmt::format("{} can't be written: {}", name, why));
    };
    if (std::find(extensions.begin(), extensions.end(), extensionOf(file_)) == extensions.end()) {
        refuse("its name has to end in .pptx or .pptm.");
    }
    const std::string folder = apps::utf8Of(file_.parent_path());
    std::error_code ignored;
    if (!fs::is_directory(folder, ignored)) {
        refuse(
            fmt::format("the folder {} doesn't exist. Make it first, or choose another.", folder));
    }
    if (!apps::takesFiles(folder)) {
        refuse(fmt::format("the folder {} takes no files: {}. Choose another.", folder, reason()));
    }
    if (fs::is_directory(file_, ignored)) refuse("it is a folder. Name a file.");
    if (ifExists_ == IfExists::Refuse && fs::exists(file_, ignored)) {
        refuse("it exists. Choose another name, or replace it with --overwrite.");
    }
}

OutputFile::~OutputFile() {
    if (!neighbour_.empty()) removeNeighbour();
}

void OutputFile::requireOtherThan(const fs::path& input) const {
    std::error_code ignored;
    if (!fs::equivalent(file_, input, ignored)) return;
    throw UsageError(fmt::format(
        "{} is what this run reads; it is never written over. Choose another output file.",
        apps::utf8Of(input)));
}

const fs::path& OutputFile::neighbour() {
    if (!neighbour_.empty()) return neighbour_;
    std::string folder =
        (file_.parent_path() / fmt::format(".{}.XXXXXX", apps::utf8Of(file_.stem()))).string();
    if (::mkdtemp(folder.data()) == nullptr) {
        throw RunError(fmt::format("No file can be made in {}: {}.",
                                   apps::utf8Of(file_.parent_path()), reason()));
    }
    neighbour_ = fs::path(folder) / ("output" + extensionOf(file_));
    std::ofstream{neighbour_};
    return neighbour_;
}

void OutputFile::commit() {
    std::error_code ignored;
    if (neighbour_.empty() || fs::file_size(neighbour_, ignored) == 0) {
        throw RunError(
            fmt::format("Nothing was written, so {} was not made.", apps::utf8Of(file_)));
    }
    adoptMode();
    takeName();
    removeNeighbour();
}

/// With all that a suite that was killed has left beside it.
void OutputFile::removeNeighbour() {
    std::error_code ignored;
    fs::remove_all(neighbour_.parent_path(), ignored);
    neighbour_.clear();
}

/// A temporary file is made for its owner alone; the output gets the mode of what it replaces, or
/// that of any new file.
void OutputFile::adoptMode() const {
    struct stat replaced = {};
    mode_t mode = 0;
    if (::stat(file_.c_str(), &replaced) == 0) {
        mode = replaced.st_mode & 07777U;
    } else {
        const mode_t mask = ::umask(0);
        ::umask(mask);
        mode = 0666U & ~mask;
    }
    // A file system without modes takes none, and needs none.
    static_cast<void>(::chmod(neighbour_.c_str(), mode));
}

void OutputFile::takeName() {
    const auto rename = [&](unsigned flags) {
        const bool isDone =
            ::renameat2(AT_FDCWD, neighbour_.c_str(), AT_FDCWD, file_.c_str(), flags) == 0;
        return isDone ? 0 : errno;
    };
    int error = rename(ifExists_ == IfExists::Refuse ? RENAME_NOREPLACE : 0);
    if (error == EEXIST) {
        throw RunError(fmt::format("{} was made by somebody else meanwhile and was left alone.",
                                   apps::utf8Of(file_)));
    }
    // Some file systems can't rename without replacing.
    if (error == EINVAL) error = rename(0);
    if (error != 0) {
        throw RunError(
            fmt::format("{} can't be written: {}.", apps::utf8Of(file_), std::strerror(error)));
    }
}

}  // namespace unattended

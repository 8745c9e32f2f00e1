#include <fmt/format.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <optional>
#include <system_error>
#include <utility>
#include <vector>

#include "apps/murvane_export/errors.h"
#include "apps/murvane_export/output_mode.h"
#include "apps/murvane_export/outputs.h"
#include "apps/process_folder.h"
#include "apps/whole_file.h"
#include "office/files.h"
#include "office/text.h"

namespace unattended {

namespace {

namespace fs = std::filesystem;

std::string reason() {
    return std::strerror(errno);
}

std::string extensionOf(const fs::path& file) {
    return office::lowerCase(office::utf8Of(file.extension()));
}

/// One file.
class OutputFile : public Output {
public:
    OutputFile(const fs::path& name, const std::vector<std::string>& endings, bool overwrites);

    void requireCanCommit() override;
    void commit() override;

protected:
    void makeNeighbour(const fs::path& folder) override;
};

/// A folder of files.
class OutputFolder : public Output {
public:
    OutputFolder(const fs::path& name, bool overwrites);

    void requireCanCommit() override;
    void commit() override;

protected:
    void makeNeighbour(const fs::path& folder) override;

private:
    [[nodiscard]] std::vector<fs::path> made();
    void requireRoomFor(const fs::path& path) const;
    void takeIn(const fs::path& path);
};

std::string listed(const std::vector<std::string>& endings) {
    std::string text = endings.front();
    for (std::size_t i = 1; i < endings.size(); ++i) text += " or " + endings[i];
    return text;
}

OutputFile::OutputFile(const fs::path& name, const std::vector<std::string>& endings,
                       bool overwritesFile)
    : Output(behindLinks(name), behindLinks(name).parent_path(), overwritesFile) {
    std::error_code ignored;
    if (std::find(endings.begin(), endings.end(), extensionOf(file())) == endings.end())
        refuse(fmt::format("its name has to end in {}.", listed(endings)));
    if (fs::is_directory(file(), ignored)) refuse("it is a folder. Name a file.");
    if (!overwrites() && fs::exists(file(), ignored))
        refuse("it exists. Choose another name, or replace it with --overwrite.");
}

void OutputFile::makeNeighbour(const fs::path& folder) {
    const fs::path made = folder / ("output" + extensionOf(file()));
    madeFile(made, 0666);
    setNeighbour(made);
}

void OutputFile::requireCanCommit() {
    std::error_code ignored;
    if (!hasNeighbour() || fs::file_size(neighbour(), ignored) == 0) failWithoutContent();
    const bool isReplaceable = overwrites() && !fs::is_directory(file(), ignored);
    if (fs::exists(file(), ignored) && !isReplaceable) failForAnother(file());
}

void OutputFile::commit() {
    requireCanCommit();
    std::error_code ignored;
    // What replaces a file is on the disk first, so that a power cut leaves the one or the other.
    if (fs::exists(file(), ignored)) apps::flush(neighbour().string());
    takeName(neighbour(), file());
    removeNeighbour();
}

/// A folder that is there may be the only place that takes files, and may be a disk of its own.
fs::path draftPlaceFor(const fs::path& folder) {
    std::error_code ignored;
    return fs::is_directory(folder, ignored) ? folder : folder.parent_path();
}

OutputFolder::OutputFolder(const fs::path& name, bool overwritesFolder)
    : Output(behindLinks(name), draftPlaceFor(behindLinks(name)), overwritesFolder) {
    std::error_code ignored;
    if (fs::exists(file(), ignored) && !fs::is_directory(file(), ignored))
        refuse("it is a file. Name a folder.");
    if (!fs::is_directory(file(), ignored)) return;
    apps::sweepDraftFolders(file().string());
    if (!overwrites() && !fs::is_empty(file(), ignored))
        refuse(
            "it exists and holds files. Choose another name, or write into it with "
            "--overwrite.");
}

void OutputFolder::makeNeighbour(const fs::path& folder) {
    const fs::path made = folder / "output";
    fs::create_directory(made);
    setNeighbour(made);
}

void OutputFolder::requireCanCommit() {
    std::error_code ignored;
    if (!hasNeighbour() || fs::is_empty(neighbour(), ignored)) failWithoutContent();
    if (!fs::exists(file(), ignored)) return;
    if (!fs::is_directory(file(), ignored)) failForAnother(file());
    for (const fs::path& path : made()) requireRoomFor(path);
}

/// A folder that is there takes in what was made, which is complete, one after the other.
void OutputFolder::commit() {
    requireCanCommit();
    std::error_code ignored;
    if (!fs::exists(file(), ignored)) {
        takeName(neighbour(), file());
    } else {
        for (const fs::path& path : made()) takeIn(path);
    }
    removeNeighbour();
}

/// Folders first: a page comes when its pictures are there.
std::vector<fs::path> OutputFolder::made() {
    std::vector<fs::path> all;
    for (const auto& entry : fs::directory_iterator(neighbour())) all.push_back(entry.path());
    std::partition(all.begin(), all.end(), [](const fs::path& path) {
        std::error_code ignored;
        return fs::is_directory(path, ignored);
    });
    return all;
}

void OutputFolder::requireRoomFor(const fs::path& path) const {
    const fs::path to = file() / path.filename();
    std::error_code ignored;
    const fs::file_status there = fs::symlink_status(to, ignored);
    if (!fs::exists(there)) return;
    if (!overwrites()) failForAnother(to);
    if (fs::is_directory(there) && !fs::is_directory(path, ignored))
        throw RunError(fmt::format(
            "{} is a folder where a file is to be written; nothing was replaced. Move it "
            "elsewhere, or choose another output.",
            office::utf8Of(to)));
}

/// A folder takes another's place, which comes back if it can't.
void OutputFolder::takeIn(const fs::path& path) {
    const fs::path to = file() / path.filename();
    const fs::path aside = neighbour().parent_path() / "replaced";
    std::error_code ignored;
    std::error_code staysThere = std::make_error_code(std::errc::no_such_file_or_directory);
    if (overwrites() && fs::is_directory(path, ignored)) fs::rename(to, aside, staysThere);
    try {
        takeName(path, to);
    } catch (const RunError&) {
        if (!staysThere) fs::rename(aside, to, ignored);
        throw;
    }
    if (!staysThere) fs::remove_all(aside, ignored);
}

}  // namespace

void requireReadable(const fs::path& file, const std::string& what) {
    std::error_code ignored;
    if (fs::is_directory(file, ignored)) {
        throw UsageError(fmt::format("The {} {} is a folder. Name the file itself.", what,
                                     office::utf8Of(file)));
    }
    if (::access(file.c_str(), R_OK) == 0) return;
    throw UsageError(fmt::format("The {} {} can't be read: {}. Check its name and its permissions.",
                                 what, office::utf8Of(file), reason()));
}

void requireFile(const fs::path& file, const std::string& what) {
    requireReadable(file, what);
    std::error_code ignored;
    if (fs::is_regular_file(file, ignored)) {
        // LibreOffice opens such a file as a new document.
        if (fs::file_size(file, ignored) > 0) return;
        throw UsageError(fmt::format("The {} {} is empty (0 bytes).", what, office::utf8Of(file)));
    }
    throw UsageError(fmt::format(
        "The {} {} is a pipe or a device, and is read more than once. Save it to a file and name "
        "that.",
        what, office::utf8Of(file)));
}

fs::path behindLinks(const fs::path& file) {
    constexpr int mostLinks = 40;
    std::error_code error;
    fs::path path = fs::absolute(file, error);
    for (int i = 0; i < mostLinks && fs::is_symlink(path, error); ++i) {
        const fs::path target = fs::read_symlink(path, error);
        if (error) break;
        path = path.parent_path() / target;
    }
    return path;
}

Output::Output(fs::path file, fs::path draftPlace, bool overwrites)
    : file_(std::move(file)),
      draftPlace_(std::move(draftPlace)),
      overwrites_(overwrites) {
    const std::string folder = office::utf8Of(draftPlace_);
    std::error_code ignored;
    if (!fs::is_directory(folder, ignored)) {
        refuse(
            fmt::format("the folder {} doesn't exist. Make it first, or choose another.", folder));
    }
    if (!apps::takesFiles(folder)) {
        refuse(fmt::format("the folder {} takes no files: {}. Choose another.", folder, reason()));
    }
}

Output::~Output() {
    if (!neighbour_.empty()) removeNeighbour();
}

void Output::refuse(const std::string& why) const {
    throw UsageError(fmt::format("{} can't be written: {}", office::utf8Of(file_), why));
}

void Output::failWithoutContent() const {
    std::error_code ignored;
    throw RunError(fmt::format("Nothing was exported, so {} {}.", office::utf8Of(file_),
                               fs::exists(file_, ignored) ? "stays as it is" : "was not made"));
}

void Output::failForAnother(const fs::path& there) {
    throw RunError(fmt::format("{} was made by somebody else meanwhile and was left alone.",
                               office::utf8Of(there)));
}

void Output::requireOtherThan(const fs::path& input) const {
    std::error_code ignored;
    if (!fs::equivalent(file_, input, ignored)) return;
    throw UsageError(fmt::format(
        "{} is what this run reads; it is never written over. Choose another output file.",
        office::utf8Of(input)));
}

const fs::path& Output::neighbour() {
    if (!neighbour_.empty()) return neighbour_;
    const std::string folder = apps::makeDraftFolder(draftPlace_.string());
    if (folder.empty()) {
        throw RunError(
            fmt::format("No file can be made in {}: {}.", office::utf8Of(draftPlace_), reason()));
    }
    makeNeighbour(folder);
    return neighbour_;
}

/// With all that a suite that was killed has left beside it.
void Output::removeNeighbour() {
    std::error_code ignored;
    fs::remove_all(neighbour_.parent_path(), ignored);
    neighbour_.clear();
}

void Output::takeName(const fs::path& from, const fs::path& to) const {
    adoptMode(from, to, neighbour_.parent_path());
    const int error = apps::giveName(from.string(), to.string(), overwrites_);
    if (error == EEXIST) failForAnother(to);
    if (error != 0) {
        throw RunError(
            fmt::format("{} can't be written: {}.", office::utf8Of(to), std::strerror(error)));
    }
}

std::unique_ptr<Output> outputFor(const Target& target, bool overwrites) {
    using catalogue::Destination;
    const fs::path name = office::pathOf(target.output);
    const auto file = [&](const std::vector<std::string>& endings) {
        return std::make_unique<OutputFile>(name, endings, overwrites);
    };
    switch (target.destination) {
        case Destination::PowerPoint:
            return file({".pptx", ".pptm"});
        case Destination::Word:
            return file({".docx", ".docm", ".odt", ".doc"});
        case Destination::Pdf:
            return file({".pdf"});
        default:
            // With a slash at its end it would be taken for what the folder holds.
            return std::make_unique<OutputFolder>(name.has_filename() ? name : name.parent_path(),
                                                  overwrites);
    }
}

}  // namespace unattended

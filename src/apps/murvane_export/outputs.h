#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <utility>

#include "apps/murvane_export/options.h"

namespace unattended {

/// `UsageError` unless the file can be opened for reading. `what` names it in the text: "workbook".
void requireReadable(const std::filesystem::path& file, const std::string& what);
/// And unless it is a file that can be read as often as need be, which no pipe can, and holds
/// something.
void requireFile(const std::filesystem::path& file, const std::string& what);

/// What a run writes. It comes into being as a whole or not at all: a neighbour of it is written,
/// which `commit` gives its name. The neighbour's folder goes with this object, and with it
/// whatever a suite that ends half-way leaves there.
class Output {
public:
    virtual ~Output();
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    [[nodiscard]] const std::filesystem::path& file() const { return file_; }

    /// `UsageError` if the output is this file, which the run reads.
    void requireOtherThan(const std::filesystem::path& input) const;

    /// In a folder of this run's own beside the output, or within it where that is a folder which
    /// is there already, ready to be written to: a file, or an empty folder. `RunError` if it can't
    /// be made.
    [[nodiscard]] const std::filesystem::path& neighbour();

    /// `RunError` if nothing was written to the neighbour, or if the name was taken meanwhile and
    /// may not be, or by what can't be replaced. For all outputs of a run ahead of the first
    /// commit.
    virtual void requireCanCommit() = 0;
    /// The `RunError` of an output that nothing has come into.
    [[noreturn]] void failWithoutContent() const;
    /// `RunError` as well if the system refuses; what is there is left alone then.
    virtual void commit() = 0;

protected:
    /// `UsageError` if the folder that drafts come into is missing or can't be written.
    Output(std::filesystem::path file, std::filesystem::path draftPlace, bool overwrites);

    [[nodiscard]] bool overwrites() const { return overwrites_; }
    [[noreturn]] void refuse(const std::string& why) const;
    /// For a name that was free when the run began.
    [[noreturn]] static void failForAnother(const std::filesystem::path& there);
    virtual void makeNeighbour(const std::filesystem::path& folder) = 0;
    void setNeighbour(std::filesystem::path neighbour) { neighbour_ = std::move(neighbour); }
    [[nodiscard]] bool hasNeighbour() const { return !neighbour_.empty(); }
    /// Gives the neighbour, or a part of it, a name. Modes are those of any new file.
    void takeName(const std::filesystem::path& from, const std::filesystem::path& to) const;
    void removeNeighbour();

private:
    std::filesystem::path file_;
    std::filesystem::path draftPlace_;
    bool overwrites_;
    std::filesystem::path neighbour_;
};

/// The file that a name means: itself, or what it is a link to, also where that isn't there yet.
/// Absolute.
[[nodiscard]] std::filesystem::path behindLinks(const std::filesystem::path& file);

/// The output of a target. `UsageError` if the name has not the ending of its kind, if its folder
/// is missing or can't be written, if a folder bears the name of a file or a file that of a folder,
/// or if it exists and may not be overwritten. A folder may be there already if it is empty;
/// overwritten, it keeps what the run makes nothing of the same name for.
[[nodiscard]] std::unique_ptr<Output> outputFor(const Target& target, bool overwrites);

}  // namespace unattended

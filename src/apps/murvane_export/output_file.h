#pragma once

#include <filesystem>
#include <string>

namespace unattended {

enum class IfExists { Refuse, Overwrite };

/// `UsageError` unless the file can be opened for reading. `what` names it in the text: "workbook".
void requireReadable(const std::filesystem::path& file, const std::string& what);

/// The file that a run writes. It comes into being as a whole or not at all: the suite writes a
/// neighbour of it, which `commit` gives its name. The neighbour's folder goes with this object,
/// and with it whatever a suite that ends half-way leaves there.
class OutputFile {
public:
    /// `UsageError` if the name ends in neither ".pptx" nor ".pptm", if its folder is missing or
    /// can't be written, if a folder bears the name, or if it exists and may not be overwritten.
    OutputFile(const std::filesystem::path& file, IfExists ifExists);
    ~OutputFile();
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    [[nodiscard]] const std::filesystem::path& file() const { return file_; }

    /// `UsageError` if the output is this file, which the run reads.
    void requireOtherThan(const std::filesystem::path& input) const;

    /// A file in a folder of this run's own beside the output, ready to be written to. `RunError`
    /// if it can't be made.
    [[nodiscard]] const std::filesystem::path& neighbour();

    /// `RunError` if nothing was written to the neighbour, or if the name was taken meanwhile and
    /// may not be.
    void commit();

private:
    void takeName();
    void adoptMode() const;
    void removeNeighbour();

    std::filesystem::path file_;
    IfExists ifExists_;
    std::filesystem::path neighbour_;
};

}  // namespace unattended

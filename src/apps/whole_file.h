#pragma once

#include <string>
#include <string_view>

namespace apps {

enum class Readers { User, Everybody };

/// Writes a file as a whole, by way of a neighbour that then takes its name: a reader meets the
/// earlier file or this one. A link at the path is replaced, never followed. `office::Failure` 75
/// with the reason if it can't be written; an earlier file then stays, and nothing else.
void writeWhole(const std::string& path, std::string_view text, Readers readers);

/// Gives a file or a folder another name on the same disk. 0, or the number of the system's error:
/// EEXIST if the name is taken and may not be replaced.
[[nodiscard]] int giveName(const std::string& from, const std::string& to, bool replaces);

/// Has the disk hold all of a file, as far as it can.
void flush(const std::string& path);

/// Whether files can be made in the folder, found out by trying: its mode says little to an
/// administrator or on a foreign file system.
[[nodiscard]] bool takesFiles(const std::string& folder);

/// `office::Failure` 75: the path can't be "written", "made", because of a system's error.
[[noreturn]] void failIn(const std::string& path, const char* what, int error);

/// `office::Failure` 75 where a file is in the way, or the folder can't be made.
void makeFolder(const std::string& path);

}  // namespace apps

#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace session {

/// Refuses a name that is not the name of one file: `office::Failure` 75 if it is empty, "." or
/// "..", or holds a separator
/// ('/' or '\') or a control character. Names made from workbook names go through here, so that
/// none of them leads to another folder.
void requireFileName(std::string_view name);

/// A name as a part of a file name, for files whose names are the program's to choose: what a file
/// name can't hold on some system stands as "%2F", and what is too long is cut.
[[nodiscard]] std::string safeFileName(std::string_view name);

/// The address of a file on this machine, with the characters of its path escaped that an
/// address can't hold.
[[nodiscard]] std::string fileAddress(std::string_view path);

/// A name for a file that the user sees: what file names can't hold on some system, blanks and
/// points at its ends, and what would hide it stand as "_". No longer than `longest` bytes, and
/// never empty.
[[nodiscard]] std::string readableFileName(std::string_view name, std::size_t longest);

}  // namespace session

#pragma once

#include <string>

namespace libreoffice::excel {

/// Takes the file of an earlier picture out of the way. `office::Failure` 1004 if there is no such
/// folder, or if something stands there that can't be replaced.
void makeWayFor(const std::string& path);

/// Writes a file in the place of an earlier one. `office::Failure` 1004 if it can't be written, or
/// if there is nothing to write; then there is none of that name.
void writePictureFile(const std::string& path, const std::string& bytes);

/// `office::Failure` 1004 if there is no whole PNG file at the path; then there is none of that
/// name.
void requirePngFile(const std::string& path);

}  // namespace libreoffice::excel

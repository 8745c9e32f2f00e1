#pragma once

#include <string>

namespace libreoffice::excel {

/// Takes the file of an earlier picture out of the way. `office::Failure` 1004 if there is no such
/// folder, or if something stands there that can't be replaced.
void makeWayFor(const std::string& path);

/// `office::Failure` 1004 if there is no PNG file at the path.
void requirePngFile(const std::string& path);

}  // namespace libreoffice::excel

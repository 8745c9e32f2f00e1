#pragma once

#include <string>

namespace libreoffice::excel {

/// Writes a workbook's file anew so that it asks nothing before it is changed: neither for the
/// password for changes nor whether it is meant. False if the file does not ask, or is of a format
/// that keeps it elsewhere than Excel's packages do.
bool writeUnaskingCopy(const std::string& original, const std::string& copy);

}  // namespace libreoffice::excel

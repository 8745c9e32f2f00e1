#pragma once

#include <pugixml.hpp>

#include <functional>
#include <string>
#include <string_view>

namespace libreoffice::excel {

/// Writes a workbook's file anew with one of its parts changed: the one that `owner` leads to by a
/// relationship of this type; an owner of "/" is the file itself. False, and nothing is written, if
/// there is no such part or `change` leaves it as it is. `office::package::PackageError` for a file
/// that can't be read or written.
bool writeChangedCopy(const std::string& original, const std::string& copy, std::string_view owner,
                      std::string_view relationshipType,
                      const std::function<bool(pugi::xml_node root)>& change);

/// Writes a workbook's file anew so that it asks nothing before it is changed: neither for the
/// password for changes nor whether it is meant. False if the file does not ask, or is of a format
/// that keeps it elsewhere than Excel's packages do.
bool writeUnaskingCopy(const std::string& original, const std::string& copy);

}  // namespace libreoffice::excel

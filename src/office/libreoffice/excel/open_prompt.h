#pragma once

#include <string>

#include "office/libreoffice/desk.h"
#include "office/value.h"

namespace libreoffice::excel {

/// Asks the user for a file by LibreOffice's own dialog; the call lasts until it is answered. The
/// path, or false if the user cancelled or nobody is there to be asked. A filter is "What it
/// shows,*.pattern".
[[nodiscard]] office::Value askForFile(Desk& desk, const std::string& filter,
                                       const std::string& title);

}  // namespace libreoffice::excel

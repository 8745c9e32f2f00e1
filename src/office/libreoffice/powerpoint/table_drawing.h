#pragma once

#include <string>

#include "office/table_look.h"

namespace libreoffice::powerpoint {

/// A drawing of one table, in one file.
[[nodiscard]] std::string tableDrawing(const office::TableLook& table, double scale);

}  // namespace libreoffice::powerpoint

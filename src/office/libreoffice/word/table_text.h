#pragma once

#include <string>

#include "office/table_look.h"

namespace libreoffice::word {

/// The content of a text of one table.
[[nodiscard]] std::string tableText(const office::TableLook& table, double scale);

}  // namespace libreoffice::word

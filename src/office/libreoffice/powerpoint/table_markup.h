#pragma once

#include <string>

#include "office/table_look.h"

namespace libreoffice::powerpoint {

/// A drawing of one table as LibreOffice's documents are written, its fonts, widths and heights
/// scaled. Cells that look alike share their styles, on which most of the time of reading goes.
[[nodiscard]] std::string tableMarkup(const office::TableLook& table, double scale);

}  // namespace libreoffice::powerpoint

#pragma once

#include <string>

#include "office/table_look.h"

/// Tables as LibreOffice's documents are written, their fonts, widths and heights scaled. Cells
/// that look alike share their styles, on which most of the time of reading goes.
///
/// In each column and in each row of a table a cell begins: LibreOffice takes any other out as soon
/// as its cells are merged, and merges what follows in wrong places.
namespace libreoffice::objects {

/// A drawing of one table, in one file.
[[nodiscard]] std::string tableDrawing(const office::TableLook& table, double scale);

/// The content of a text of one table.
[[nodiscard]] std::string tableText(const office::TableLook& table, double scale);

}  // namespace libreoffice::objects

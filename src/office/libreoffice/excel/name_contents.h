#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "office/libreoffice/excel/addresses.h"

namespace libreoffice::excel {

/// Cells of one sheet, as the contents of a name give them.
struct CellsOfSheet {
    std::string sheet;
    CellBlocks blocks;
};

/// The cells that the contents of a name stand for, in LibreOffice's own notation
/// ("$Sales.$A$1:$B$2", several areas joined by ";" or "~"). Nothing if they are no fixed cells of
/// one sheet of this workbook: a constant, a formula, a broken or relative reference, cells of
/// another file.
[[nodiscard]] std::optional<CellsOfSheet> cellsOfContents(std::string_view contents);

/// Whether the contents hold a reference that broke.
[[nodiscard]] bool isBrokenReference(std::string_view contents);

/// Whether the contents may be one reference that moves with the cell it is used in ("$Sales.A1").
[[nodiscard]] bool couldBeRelative(std::string_view contents);

}  // namespace libreoffice::excel

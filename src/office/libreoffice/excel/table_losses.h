#pragma once

#include <string>
#include <vector>

#include "office/libreoffice/excel/calc_document.h"
#include "office/suite.h"

namespace libreoffice::excel {

/// What tables would lose of the cells that are to become some, a line for each kind of loss. Only
/// what can be seen in few calls is looked for: each sheet's conditional formats and drawings are
/// read once, and of cells that hold formatted text the first ones. `drawsBars`: whether tables
/// show the bars of conditional formats where they go.
[[nodiscard]] std::vector<std::string> lossesOfTables(CalcDocument& book,
                                                      const std::vector<office::PasteItem>& items,
                                                      bool drawsBars);

}  // namespace libreoffice::excel

#pragma once

#include <string>
#include <vector>

#include "office/libreoffice/excel/calc_document.h"
#include "office/suite.h"

namespace libreoffice::excel {

enum class TablesOn { Slides, Text, Page };

/// What tables would lose of the cells that are to become some, a line for each kind of loss. Only
/// what can be seen in few calls is looked for: each sheet's conditional formats and drawings are
/// read once, and of cells that hold formatted text the first ones. What depends on the size of a
/// table, and on how its conditional formats are copied, is told of slides and texts.
[[nodiscard]] std::vector<std::string> lossesOfTables(CalcDocument& book,
                                                      const std::vector<office::PasteItem>& items,
                                                      TablesOn where);

}  // namespace libreoffice::excel

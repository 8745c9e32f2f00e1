#pragma once

#include <vector>

#include "office/libreoffice/excel/fitted_texts.h"
#include "office/table_look.h"

namespace libreoffice::excel {

/// The first column of a sheet that is read from right to left is the one at the right. Texts stand
/// where they would elsewhere, to the left or to the right; lines change their sides.
void mirror(office::TableLook& table, std::vector<CellValue>& values);

/// Makes one line of columns, or of rows, in which no cell begins: they are seen as one, and some
/// programs lose their way in a table that says otherwise.
[[nodiscard]] office::TableLook withoutUnseenLines(const office::TableLook& table);

}  // namespace libreoffice::excel

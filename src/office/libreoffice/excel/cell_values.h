#pragma once

#include <com/sun/star/table/XCellRange.hpp>

#include <string>

#include "office/libreoffice/excel/number_formats.h"
#include "office/model/excel/cells.h"
#include "office/value.h"

/// Blocks of cells between LibreOffice and the object model. A block travels in one call each way;
/// what LibreOffice keeps as a number format and Excel as the type of a value costs a few calls
/// more, by the column and never by the cell.
namespace libreoffice::excel {

namespace model = office::model::excel;

/// Truth values come as booleans, errors and empty cells as empty.
[[nodiscard]] office::Table readCells(NumberFormats& formats,
                                      const uno::Reference<css::table::XCellRange>& range,
                                      const model::CellBlock& size);

/// Writes a table from the first cell on, as if it had been typed in. A text that begins with "="
/// stays text, wherever it came from. `css::uno::Exception` if the sheet is protected.
void writeCells(NumberFormats& formats, const uno::Reference<css::table::XCellRange>& range,
                const model::CellBlock& size, const office::Table& table);

}  // namespace libreoffice::excel

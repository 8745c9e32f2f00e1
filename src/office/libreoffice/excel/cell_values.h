#pragma once

#include <com/sun/star/table/XCellRange.hpp>

#include <string>

#include "office/libreoffice/excel/addresses.h"
#include "office/libreoffice/excel/number_formats.h"
#include "office/value.h"

/// Blocks of cells between LibreOffice and the object model. A block travels in one call each way;
/// what LibreOffice keeps as a number format and Excel as the type of a value costs a few calls
/// more, by the column and never by the cell.
namespace libreoffice::excel {

/// Truth values come as booleans, errors and empty cells as empty. A single cell gives its value,
/// else a table.
[[nodiscard]] office::Value readCells(NumberFormats& formats,
                                      const uno::Reference<css::table::XCellRange>& range,
                                      const CellBlock& size);

/// Writes a value into every cell, or a table from the first cell on, as if it had been typed in: a
/// text that is a number becomes one, unless the cell is formatted as text, where a number becomes
/// text. A formula is not made: a text that begins with "=" stays text, wherever it came from. A
/// table larger than the range is cut; what it does not reach stays as it was.
/// `css::uno::Exception` if the sheet is protected.
void writeCells(NumberFormats& formats, const uno::Reference<css::table::XCellRange>& range,
                const CellBlock& size, const office::Value& value);

}  // namespace libreoffice::excel

#pragma once

#include <com/sun/star/table/XCellRange.hpp>

#include <cstdint>
#include <vector>

#include "office/libreoffice/excel/number_formats.h"

namespace libreoffice::excel {

/// What kinds of number formats the cells of one column of a range have, row by row. A
/// few calls, however many cells.
[[nodiscard]] std::vector<NumberFormats::Kind> formatKindsOfColumn(
    NumberFormats& formats, const uno::Reference<css::table::XCellRange>& range,
    std::int32_t column, std::int32_t rows);

/// Gives cells of a column that follow each other a number format.
void setFormatOfRows(const uno::Reference<css::table::XCellRange>& range, std::int32_t column,
                     std::int32_t firstRow, std::int32_t lastRow, std::int32_t formatKey);

}  // namespace libreoffice::excel

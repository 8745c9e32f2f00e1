#pragma once

#include <com/sun/star/sheet/XSheetCellRanges.hpp>
#include <com/sun/star/table/XCellRange.hpp>

#include <vector>

#include "office/libreoffice/uno_values.h"

namespace libreoffice::excel {

/// The cells of a range in groups of the same formats, whose own properties are those of each cell
/// in them.
[[nodiscard]] std::vector<uno::Reference<css::sheet::XSheetCellRanges>> cellsAlike(
    const uno::Reference<css::table::XCellRange>& cells);

}  // namespace libreoffice::excel

#pragma once

#include "office/call_arguments.h"
#include "office/libreoffice/desk.h"
#include "office/libreoffice/excel/calc_document.h"
#include "office/value.h"

/// `Range`, `Cells`, `Rows` and `Columns` of a worksheet; the application's are those of its active
/// sheet.
namespace libreoffice::excel {

/// Cell1[, Cell2]: an address, a name, or two cells. `office::Failure` 1004 if there is no such
/// range, or if it is on another sheet and `mayLeaveSheet` is false.
[[nodiscard]] office::Value rangeByArguments(const DeskPtr& desk, const BookPtr& book,
                                             const SheetPtr& sheet,
                                             const office::CallArguments& arguments,
                                             bool mayLeaveSheet);
[[nodiscard]] office::Value cellsByArguments(const DeskPtr& desk, const BookPtr& book,
                                             const SheetPtr& sheet,
                                             const office::CallArguments& arguments);
[[nodiscard]] office::Value rowsByArguments(const DeskPtr& desk, const BookPtr& book,
                                            const SheetPtr& sheet,
                                            const office::CallArguments& arguments);
[[nodiscard]] office::Value columnsByArguments(const DeskPtr& desk, const BookPtr& book,
                                               const SheetPtr& sheet,
                                               const office::CallArguments& arguments);

}  // namespace libreoffice::excel

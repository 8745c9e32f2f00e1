#pragma once

#include <fmt/format.h>

#include <string>

#include "office/libreoffice/excel/book_object.h"

namespace libreoffice::excel {

/// `Visible` of sheets.
namespace visibility {
constexpr std::int32_t shown = -1;
constexpr std::int32_t hidden = 0;
constexpr std::int32_t veryHidden = 2;
}  // namespace visibility

[[nodiscard]] std::int32_t visibilityOf(SheetRecord& sheet);
/// `office::Failure` 1004 if the workbook would be left without a visible sheet, or is protected.
void setVisibility(CalcDocument& book, const Connection& connection, SheetRecord& sheet,
                   const Value& wanted);
/// `office::Failure` 1004 if the workbook refuses the name.
void renameSheet(CalcDocument& book, const Connection& connection, const SheetPtr& sheet,
                 const std::string& name);
/// Brings a sheet to the top. `office::Failure` 1004 for a hidden one.
void activateSheet(CalcDocument& book, const SheetPtr& sheet, const std::string& source);
/// `office::Failure` 1004 if it is the last visible sheet, or the workbook is protected.
void deleteSheet(CalcDocument& book, const Connection& connection, const SheetPtr& sheet);
/// `office::Failure` 1004 if the workbook's structure is protected.
void requireOpenStructure(CalcDocument& book, const Connection& connection,
                          const std::string& source);

}  // namespace libreoffice::excel

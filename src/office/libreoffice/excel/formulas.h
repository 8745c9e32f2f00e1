#pragma once

#include <com/sun/star/table/CellAddress.hpp>

#include <string>

#include "office/libreoffice/excel/calc_document.h"

namespace libreoffice::excel {

enum class Notation { A1, R1C1 };

/// What a name stands for, in Excel's words ("=Sales!$A$1:$B$2"), from LibreOffice's
/// ("$Sales.$A$1:$B$2").
[[nodiscard]] std::string formulaOfContents(CalcDocument& book, const std::string& contents,
                                            Notation notation);

/// And back. `office::Failure` 1004 if it is no formula.
[[nodiscard]] std::string contentsOfFormula(CalcDocument& book, const std::string& formula,
                                            Notation notation);

/// What a cell holds, in Excel's words: "=SUM(Sales!B2:B3)" from "=SUM($Sales.B2:B3)".
[[nodiscard]] std::string formulaOfCell(CalcDocument& book, const std::string& formula,
                                        const css::table::CellAddress& cell);

}  // namespace libreoffice::excel

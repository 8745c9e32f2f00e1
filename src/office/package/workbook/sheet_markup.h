#pragma once

#include "office/package/workbook/formula_reach.h"
#include "office/package/xml.h"

namespace office::package {

/// Takes out of a sheet what needs more than the sheet: cells keep their values in place of their
/// formulas, and conditional formats, validation, sparklines and hyperlinks go.
void reduceSheet(const Xml& sheet, const FormulaReach& reach);
/// Takes out of a drawing what isn't drawn but lives in the workbook: controls, objects, slicers,
/// macros, texts that follow a cell elsewhere.
void reduceDrawing(const Xml& drawing, const FormulaReach& reach);
/// Takes out of a table the formulas of its columns that need more, and where it was read from.
void reduceTable(const Xml& table, const FormulaReach& reach);

/// The texts that cells have in common, with those that a sheet uses alone; its cells name them by
/// their new numbers then.
void reduceStrings(const Xml& strings, const Xml& sheet);
/// Takes the number formats out that a sheet doesn't use; they may hold texts.
void reduceFormats(const Xml& styles, const Xml& sheet);

}  // namespace office::package

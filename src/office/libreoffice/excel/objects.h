#pragma once

#include <string>

#include "office/libreoffice/desk.h"
#include "office/libreoffice/excel/addresses.h"
#include "office/libreoffice/excel/calc_document.h"
#include "office/model/item_index.h"
#include "office/value.h"

/// The automation objects of this folder, made without knowing their classes.
namespace libreoffice::excel {

/// What a range counts and steps by: `Rows` and `Columns` give ranges of their own kind.
enum class RangeUnit { Cells, Rows, Columns };

[[nodiscard]] office::Value workbookObject(const DeskPtr& desk, const BookPtr& book);
/// A "Worksheet", or a "Chart" for a chart sheet. Empty for no sheet.
[[nodiscard]] office::Value sheetObject(const DeskPtr& desk, const BookPtr& book,
                                        const SheetPtr& sheet);
[[nodiscard]] office::Value sheetsObject(const DeskPtr& desk, const BookPtr& book,
                                         SheetList::Kind kind);
[[nodiscard]] office::Value rangeObject(const DeskPtr& desk, const BookPtr& book,
                                        const SheetPtr& sheet, CellBlocks blocks,
                                        RangeUnit unit = RangeUnit::Cells);
/// All names of the workbook, or those of one sheet.
[[nodiscard]] office::Value namesObject(const DeskPtr& desk, const BookPtr& book,
                                        const SheetPtr& ofSheet = nullptr);
[[nodiscard]] office::Value chartObjectsObject(const DeskPtr& desk, const BookPtr& book,
                                               const SheetPtr& sheet);
[[nodiscard]] office::Value chartObjectObject(const DeskPtr& desk, const BookPtr& book,
                                              const SheetPtr& sheet, const ChartShapePtr& chart);
/// The chart in a chart object.
[[nodiscard]] office::Value embeddedChartObject(const DeskPtr& desk, const BookPtr& book,
                                                const SheetPtr& sheet, const ChartShapePtr& chart);

using office::model::ItemIndex;

}  // namespace libreoffice::excel

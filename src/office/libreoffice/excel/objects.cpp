#include "office/libreoffice/excel/objects.h"

#include <utility>

#include "office/libreoffice/excel/chart_object.h"
#include "office/libreoffice/excel/chart_objects.h"
#include "office/libreoffice/excel/chart_sheet.h"
#include "office/libreoffice/excel/embedded_chart.h"
#include "office/libreoffice/excel/names.h"
#include "office/libreoffice/excel/range.h"
#include "office/libreoffice/excel/sheets.h"
#include "office/libreoffice/excel/workbook.h"
#include "office/libreoffice/excel/worksheet.h"

namespace libreoffice::excel {

Value workbookObject(const DeskPtr& desk, const BookPtr& book) {
    return makeObject<Workbook>(desk, book);
}

Value sheetObject(const DeskPtr& desk, const BookPtr& book, const SheetPtr& sheet) {
    if (!sheet) return {};
    if (sheet->isChartSheet) return makeObject<ChartSheet>(desk, book, sheet);
    return makeObject<Worksheet>(desk, book, sheet);
}

Value sheetsObject(const DeskPtr& desk, const BookPtr& book, SheetList::Kind kind) {
    return makeObject<Sheets>(desk, book, kind);
}

Value rangeObject(const DeskPtr& desk, const BookPtr& book, const SheetPtr& sheet,
                  CellBlocks blocks, RangeUnit unit) {
    return makeObject<Range>(desk, book, sheet, std::move(blocks), unit);
}

Value namesObject(const DeskPtr& desk, const BookPtr& book, const SheetPtr& ofSheet) {
    return makeObject<Names>(desk, book, ofSheet);
}

Value chartObjectsObject(const DeskPtr& desk, const BookPtr& book, const SheetPtr& sheet) {
    return makeObject<ChartObjects>(desk, book, sheet);
}

Value chartObjectObject(const DeskPtr& desk, const BookPtr& book, const SheetPtr& sheet,
                        const ChartShapePtr& chart) {
    return makeObject<ChartObject>(desk, book, sheet, chart);
}

Value embeddedChartObject(const DeskPtr& desk, const BookPtr& book, const SheetPtr& sheet,
                          const ChartShapePtr& chart) {
    return makeObject<EmbeddedChart>(desk, book, sheet, chart);
}

}  // namespace libreoffice::excel

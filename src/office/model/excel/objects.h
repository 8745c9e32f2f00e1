#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "office/model/excel/books.h"
#include "office/model/item_index.h"
#include "office/model/model_object.h"

/// The classes of Excel's object model, made here and reached by their members only.
namespace office::model::excel {

/// What every object of a workbook holds.
struct InBook {
    GuardPtr guard;
    BooksPtr books;
    BookPtr book;

    [[nodiscard]] bool isGone() const { return book->isGone(); }
};
struct InSheet : InBook {
    SheetPtr sheet;

    [[nodiscard]] bool isGone() const { return InBook::isGone() || sheet->isGone(); }
};

/// Before a sheet is changed: `Failure` Disconnected if it has been deleted.
void requireThere(const InSheet& home, const std::string& source);

/// Base of the objects of a workbook or, with `InSheet`, of a sheet.
template <class Self, class Home = InBook>
class ObjectIn : public HomedObject<Self, Home> {
public:
    using HomedObject<Self, Home>::HomedObject;

    [[nodiscard]] Books& books() const { return *this->home().books; }
    [[nodiscard]] Book& book() const { return *this->home().book; }
    [[nodiscard]] Sheet& sheet() const { return *this->home().sheet; }
};

[[nodiscard]] Object applicationObject(GuardPtr guard, BooksPtr books);
[[nodiscard]] Object workbooksObject(GuardPtr guard, BooksPtr books);
[[nodiscard]] Object workbookObject(const InBook& home);
/// What is selected: a "Range", a "ChartArea", or empty for anything else.
[[nodiscard]] Value selectionObject(const InBook& home);
/// The chart sheet on top, or the chart that is selected; empty if there is none.
[[nodiscard]] Value activeChart(const InBook& home);

enum class SheetKind { Any, Worksheet, ChartSheet };
[[nodiscard]] Object sheetsObject(const InBook& home, SheetKind kind);
/// A "Worksheet", or a "Chart" for a chart sheet; nothing for no sheet.
[[nodiscard]] Object sheetObject(const InBook& home, const SheetPtr& sheet);
/// Brings a sheet to the top. `Failure` 1004 for a hidden one.
void activateSheet(const InSheet& home, const std::string& source);
/// All names of the workbook.
[[nodiscard]] Object namesObject(const InBook& home);
[[nodiscard]] Object chartObjectsObject(const InSheet& home);
/// The chart that an index asks for: a number or a name. `Failure` 9 if there is none.
[[nodiscard]] Object chartObjectByIndex(const InSheet& home, const CallArguments& arguments);
/// A chart on a worksheet: the frame around it, and the chart in it.
[[nodiscard]] Object chartObjectObject(const InSheet& home, const SheetChartPtr& chart);
[[nodiscard]] Object chartObject(const InSheet& home, const SheetChartPtr& chart);
/// The area of a chart, or of a chart sheet for no chart.
[[nodiscard]] Object chartAreaObject(const InSheet& home, const SheetChartPtr& chart);
/// Where a sheet's things are copied from, with the chart or the cells left open.
[[nodiscard]] CopySource sourceOf(const InSheet& home, CopySource::Kind kind);
/// Copies a chart or, of no chart, that of a chart sheet.
void copyChart(const InSheet& home, CopySource::Kind kind, const SheetChartPtr& chart);
/// Has a chart written as an `Export` asks for it: to a file, in the kind that the filter names or,
/// without one, the end of the file's name. `Failure` 5 for a filter that there isn't.
void exportPicture(SheetChart& chart, const CallArguments& arguments);

[[nodiscard]] Object rangeObject(const InSheet& home, CellBlocks blocks);
/// The arguments of `Range`: an address, a name, or two cells. `Failure` 1004 if there is no such
/// range on the sheet.
[[nodiscard]] Object rangeByArguments(const InSheet& home, const CallArguments& arguments);
/// Those of `Columns`: "B:D". `Failure` 13 for anything else.
[[nodiscard]] Object columnsByArguments(const InSheet& home, const CallArguments& arguments);
/// The sheet that a range lies on, and its blocks. `Failure` 13 if the value is no range.
struct RangePlace {
    InSheet home;
    CellBlocks blocks;
};
[[nodiscard]] RangePlace placeOfRange(const Value& range, const std::string& source);

/// Cells by a text: an address or a name, with the name of a sheet ahead or meant on the given one.
/// A sheet's own name goes ahead of the workbook's.
[[nodiscard]] std::optional<RangePlace> findCells(const InSheet& home, std::string_view text);

/// What is published of a workbook as pages.
[[nodiscard]] Object publishObjectsObject(const InBook& home);

}  // namespace office::model::excel

#include <com/sun/star/awt/Point.hpp>
#include <com/sun/star/awt/Size.hpp>
#include <com/sun/star/sheet/XCellRangesQuery.hpp>
#include <com/sun/star/sheet/XSheetCellRanges.hpp>
#include <com/sun/star/table/XColumnRowRange.hpp>
#include <com/sun/star/view/XSelectionSupplier.hpp>

#include "office/libreoffice/excel/range.h"
#include "office/libreoffice/excel/range_picture.h"
#include "office/libreoffice/units.h"

/// Where the cells of a range are and how they show.
namespace libreoffice::excel {

namespace {

bool isAllShown(const uno::Reference<css::table::XCellRange>& range, const CellBlock& block) {
    const auto shown =
        as<css::sheet::XCellRangesQuery>(range)->queryVisibleCells()->getRangeAddresses();
    return shown.getLength() == 1 && CellBlock{shown[0].StartColumn, shown[0].StartRow,
                                               shown[0].EndColumn, shown[0].EndRow} == block;
}

}  // namespace

Value Range::width() {
    return pointsOf(property<css::awt::Size>(cells(), "Size").Width);
}

Value Range::height() {
    return pointsOf(property<css::awt::Size>(cells(), "Size").Height);
}

Value Range::left() {
    return pointsOf(property<css::awt::Point>(cells(), "Position").X);
}

Value Range::top() {
    return pointsOf(property<css::awt::Point>(cells(), "Position").Y);
}

Value Range::isHidden() {
    const auto lines = as<css::table::XColumnRowRange>(cells());
    if (unit_ == RangeUnit::Columns) return !property<bool>(lines->getColumns(), "IsVisible", true);
    return !property<bool>(lines->getRows(), "IsVisible", true);
}

void Range::setHidden(const Value& hidden) {
    const bool isColumns = unit_ == RangeUnit::Columns && first().spansAllRows();
    if (!isColumns && !first().spansAllColumns()) {
        throw Failure(FailureNumber::ApplicationDefined, "Range.Hidden",
                      "Only entire rows and columns can be hidden");
    }
    requireSheet("Range.Hidden");
    for (const CellBlock& block : blocks_) {
        const auto range = sheet().cells(block);
        // Where nothing is hidden the workbook stays untouched: it would count as changed
        // otherwise.
        if (!hidden.toBool() && isAllShown(range, block)) continue;
        const auto lines = as<css::table::XColumnRowRange>(range);
        if (isColumns) {
            setProperty(lines->getColumns(), "IsVisible", !hidden.toBool());
        } else {
            setProperty(lines->getRows(), "IsVisible", !hidden.toBool());
        }
    }
}

Value Range::select(const CallArguments& arguments) {
    requireSheet(arguments.source());
    if (book().activeSheet(desk().connection()) != sheetPtr()) {
        throw Failure(FailureNumber::ApplicationDefined, arguments.source(),
                      "Only cells of the active sheet can be selected");
    }
    as<css::view::XSelectionSupplier>(book().controller())
        ->select(selectionOf(book(), sheetPtr(), blocks_));
    return true;
}

/// A copy is taken for its picture: what else can be made of cells goes another way than through
/// this object.
Value Range::copyPicture(const CallArguments& arguments) {
    if (blocks_.size() > 1) {
        throw Failure(FailureNumber::ApplicationDefined, arguments.source(),
                      "This can't be done with several areas");
    }
    desk().copiedPicture = takePictureOfCells(book(), sheetPtr(), first());
    return true;
}

}  // namespace libreoffice::excel

#include "office/libreoffice/excel/column_formats.h"

#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/beans/XPropertyState.hpp>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/sheet/XCellRangeAddressable.hpp>
#include <com/sun/star/sheet/XSheetCellRanges.hpp>
#include <com/sun/star/sheet/XUniqueCellFormatRangesSupplier.hpp>

#include <algorithm>

namespace libreoffice::excel {

namespace {

NumberFormats::Kind kindOf(NumberFormats& formats, const uno::Reference<uno::XInterface>& cells) {
    return formats.kindOf(property<sal_Int32>(cells, "NumberFormat"));
}

}  // namespace

std::vector<NumberFormats::Kind> formatKindsOfColumn(
    NumberFormats& formats, const uno::Reference<css::table::XCellRange>& range,
    std::int32_t column, std::int32_t rows) {
    const auto cells = range->getCellRangeByPosition(column, 0, column, rows - 1);
    const auto count = static_cast<std::size_t>(rows);
    const auto state = as<css::beans::XPropertyState>(cells)->getPropertyState("NumberFormat");
    if (rows == 1 || state != css::beans::PropertyState_AMBIGUOUS_VALUE)
        return {count, kindOf(formats, cells)};

    std::vector<NumberFormats::Kind> kinds(count, NumberFormats::Kind::Other);
    const sal_Int32 start =
        as<css::sheet::XCellRangeAddressable>(cells)->getRangeAddress().StartRow;
    const auto groups =
        as<css::sheet::XUniqueCellFormatRangesSupplier>(cells)->getUniqueCellFormatRanges();
    for (sal_Int32 i = 0; i < groups->getCount(); ++i) {
        const uno::Reference<css::sheet::XSheetCellRanges> group(groups->getByIndex(i),
                                                                 uno::UNO_QUERY_THROW);
        const NumberFormats::Kind kind = kindOf(formats, group);
        if (kind == NumberFormats::Kind::Other) continue;
        const auto addresses = group->getRangeAddresses();
        for (const css::table::CellRangeAddress& address : addresses) {
            std::fill(kinds.begin() + (address.StartRow - start),
                      kinds.begin() + (address.EndRow - start + 1), kind);
        }
    }
    return kinds;
}

void setFormatOfRows(const uno::Reference<css::table::XCellRange>& range, std::int32_t column,
                     std::int32_t firstRow, std::int32_t lastRow, std::int32_t formatKey) {
    setProperty(range->getCellRangeByPosition(column, firstRow, column, lastRow), "NumberFormat",
                formatKey);
}

}  // namespace libreoffice::excel

#include "office/libreoffice/excel/cells_alike.h"

#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/sheet/XUniqueCellFormatRangesSupplier.hpp>

#include "office/libreoffice/excel/answered.h"

namespace libreoffice::excel {

std::vector<uno::Reference<css::sheet::XSheetCellRanges>> cellsAlike(
    const uno::Reference<css::table::XCellRange>& cells) {
    const auto groups = answered(
        as<css::sheet::XUniqueCellFormatRangesSupplier>(cells)->getUniqueCellFormatRanges());
    std::vector<uno::Reference<css::sheet::XSheetCellRanges>> alike;
    const sal_Int32 count = groups->getCount();
    for (sal_Int32 i = 0; i < count; ++i)
        alike.emplace_back(groups->getByIndex(i), uno::UNO_QUERY_THROW);
    return alike;
}

}  // namespace libreoffice::excel

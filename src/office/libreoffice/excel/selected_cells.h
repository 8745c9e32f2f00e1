#pragma once

#include <com/sun/star/datatransfer/XTransferable.hpp>
#include <com/sun/star/frame/XController.hpp>
#include <com/sun/star/table/XCellRange.hpp>
#include <com/sun/star/view/XSelectionSupplier.hpp>

#include <optional>

#include "office/libreoffice/excel/calc_document.h"
#include "office/libreoffice/excel/sheet_record.h"

namespace libreoffice::excel {

/// Shows a hidden sheet for a moment: the cells of a hidden one can be selected, but the copy of
/// them is empty.
class ShownForNow {
public:
    explicit ShownForNow(SheetRecord& sheet);
    ShownForNow(const ShownForNow&) = delete;
    ShownForNow& operator=(const ShownForNow&) = delete;
    ~ShownForNow();

private:
    std::optional<KeptModifiedFlag> flag_;
    SheetRecord* sheet_;
};

/// Cells that are copied by way of a selection. The user's clipboard stays; his selection is put
/// back.
class SelectedCells {
public:
    /// `office::Failure` 1004 for a workbook without a window.
    SelectedCells(SheetRecord& sheet, uno::Reference<css::table::XCellRange> cells);
    SelectedCells(const SelectedCells&) = delete;
    SelectedCells& operator=(const SelectedCells&) = delete;
    ~SelectedCells();

    /// A copy of the cells, as they are now, in one of the forms that the suite offers.
    [[nodiscard]] uno::Sequence<sal_Int8> copyAs(const char* mimeType) const;

private:
    [[nodiscard]] uno::Reference<css::datatransfer::XTransferable> copy() const;

    const Connection& connection_;
    uno::Reference<css::table::XCellRange> cells_;
    uno::Reference<css::frame::XController> window_;
    ShownForNow shown_;
    uno::Reference<css::view::XSelectionSupplier> selection_;
    uno::Any before_;
};

}  // namespace libreoffice::excel

#pragma once

#include <com/sun/star/datatransfer/XTransferable.hpp>
#include <com/sun/star/frame/XController.hpp>
#include <com/sun/star/table/CellRangeAddress.hpp>
#include <com/sun/star/table/XCellRange.hpp>
#include <com/sun/star/view/XSelectionSupplier.hpp>

#include <optional>
#include <vector>

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

    /// Whether the sheet is hidden otherwise.
    [[nodiscard]] bool isHidden() const { return sheet_ != nullptr; }

private:
    std::optional<KeptModifiedFlag> flag_;
    SheetRecord* sheet_;
};

/// Cells that are copied by way of a selection: the suite copies nothing else. Unless they are
/// selected anyway, that brings their sheet to the top, and runs what is to run when somebody goes
/// there. Afterwards the window is as it was: the sheet on top, what is selected, where each sheet
/// is scrolled to; one that nobody sees, as soon as it is asked for. What was being typed into a
/// cell has been entered. The user's clipboard stays.
class SelectedCells {
public:
    /// `office::Failure` 1004 for a workbook without a window, or one in print preview.
    SelectedCells(SheetRecord& sheet, uno::Reference<css::table::XCellRange> cells,
                  const model::CellBlock& block);
    SelectedCells(const SelectedCells&) = delete;
    SelectedCells& operator=(const SelectedCells&) = delete;
    ~SelectedCells();

    /// A copy of the cells, as they are now, in one of the forms that the suite offers.
    [[nodiscard]] uno::Sequence<sal_Int8> copyAs(const char* mimeType);

private:
    SelectedCells(SheetRecord& sheet, uno::Reference<css::table::XCellRange> cells,
                  const model::CellBlock& block, CopyingWindow window);
    [[nodiscard]] uno::Any selectionBefore() const;
    [[nodiscard]] bool areSelectedAlone() const;
    [[nodiscard]] uno::Reference<css::datatransfer::XTransferable> copy() const;
    [[nodiscard]] uno::Reference<css::datatransfer::XTransferable> copyOf(
        const uno::Reference<css::table::XCellRange>& wanted, bool isSelected) const;
    void finishTyping();
    void putBack() const;

    SheetRecord& sheet_;
    /// Nobody types, looks or closes there.
    bool isUnseen_;
    uno::Reference<css::table::XCellRange> cells_;
    model::CellBlock block_;
    uno::Reference<css::frame::XController> window_;
    uno::Reference<css::view::XSelectionSupplier> selection_;
    uno::Reference<css::datatransfer::XTransferableSupplier> copier_;
    uno::Any before_;
    /// What of `before_` is cells.
    std::vector<css::table::CellRangeAddress> cellsBefore_;
    /// As the window writes it; nothing where nobody sees it, or where nothing was selected here.
    uno::Any view_;
    bool wasSelected_;
    std::optional<ShownForNow> shown_;
};

}  // namespace libreoffice::excel

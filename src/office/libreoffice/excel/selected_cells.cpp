#include "office/libreoffice/excel/selected_cells.h"

#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/datatransfer/UnsupportedFlavorException.hpp>
#include <com/sun/star/datatransfer/XTransferableSupplier.hpp>
#include <com/sun/star/frame/XDispatchHelper.hpp>
#include <com/sun/star/frame/XDispatchProvider.hpp>
#include <com/sun/star/lang/DisposedException.hpp>
#include <com/sun/star/sheet/XSheetCellRanges.hpp>
#include <com/sun/star/sheet/XViewPane.hpp>

#include <algorithm>
#include <memory>
#include <utility>

#include "office/failure.h"
#include "office/libreoffice/at_end.h"
#include "office/libreoffice/connection.h"
#include "office/libreoffice/excel/whole_arrays.h"
#include "office/libreoffice/main_thread.h"

namespace libreoffice::excel {

namespace {

std::vector<css::table::CellRangeAddress> cellsOf(const uno::Any& selected) {
    const uno::Reference<uno::XInterface> what(selected, uno::UNO_QUERY);
    if (const auto one = tryAs<css::sheet::XCellRangeAddressable>(what); one.is())
        return {one->getRangeAddress()};
    const auto several = tryAs<css::sheet::XSheetCellRanges>(what);
    if (!several.is()) return {};
    const auto addresses = several->getRangeAddresses();
    return {addresses.begin(), addresses.end()};
}

bool areOfSeveralSheets(const std::vector<css::table::CellRangeAddress>& cells) {
    return std::any_of(cells.begin(), cells.end(),
                       [&](const auto& each) { return each.Sheet != cells.front().Sheet; });
}

/// Of several selected sheets the suite copies the first one's cells, whichever are asked for.
void selectOneSheetAlone(const Connection& connection,
                         const uno::Reference<css::frame::XController>& window) {
    as<css::frame::XDispatchHelper>(connection.create("com.sun.star.frame.DispatchHelper"))
        ->executeDispatch(as<css::frame::XDispatchProvider>(window->getFrame()),
                          ".uno:TableDeselectAll", {}, 0, {});
}

/// Where the parts of a window, which may be divided, are scrolled to.
class Scrolled {
public:
    explicit Scrolled(const uno::Reference<css::frame::XController>& window) {
        const auto panes = as<css::container::XIndexAccess>(window);
        const sal_Int32 count = panes->getCount();
        for (sal_Int32 i = 0; i < count; ++i) {
            const uno::Reference<css::sheet::XViewPane> pane(panes->getByIndex(i),
                                                             uno::UNO_QUERY_THROW);
            panes_.push_back({pane, pane->getFirstVisibleColumn(), pane->getFirstVisibleRow()});
        }
    }
    void putBack() const {
        for (const auto& [pane, column, row] : panes_) {
            pane->setFirstVisibleColumn(column);
            pane->setFirstVisibleRow(row);
        }
    }

private:
    struct Place {
        uno::Reference<css::sheet::XViewPane> pane;
        sal_Int32 column;
        sal_Int32 row;
    };
    std::vector<Place> panes_;
};

}  // namespace

ShownForNow::ShownForNow(SheetRecord& sheet) : sheet_(&sheet) {
    if (sheet.isShown()) {
        sheet_ = nullptr;
        return;
    }
    flag_.emplace(sheet.book());
    const UnheardByLooks unheard(sheet.book());
    sheet.show(true);
}

ShownForNow::~ShownForNow() {
    if (sheet_ == nullptr) return;
    asFarAsPossible([&] {
        const UnheardByLooks unheard(sheet_->book());
        asFarAsPossible([&] { sheet_->show(false); });
        flag_.reset();
    });
}

SelectedCells::SelectedCells(SheetRecord& sheet, uno::Reference<css::table::XCellRange> cells,
                             const model::CellBlock& block, CopyingWindow window)
    : sheet_(sheet),
      isUnseen_(sheet.book().desk().opensHidden()),
      cells_(std::move(cells)),
      block_(block),
      window_(std::move(window.window)),
      selection_(std::move(window.selection)),
      copier_(std::move(window.copier)),
      before_(selectionBefore()),
      cellsBefore_(cellsOf(before_)),
      wasSelected_(areSelectedAlone()) {}

SelectedCells::SelectedCells(SheetRecord& sheet, uno::Reference<css::table::XCellRange> cells,
                             const model::CellBlock& block)
    : SelectedCells(sheet, std::move(cells), block, sheet.book().copyingWindow()) {
    // From here on the destructor undoes what was done, also when this fails.
    if (wasSelected_) return;
    if (!isUnseen_) finishTyping();
    if (areOfSeveralSheets(cellsBefore_)) selectOneSheetAlone(sheet.book().connection(), window_);
    shown_.emplace(sheet);
}

/// Cells whose selection is to come back later are what was copied last.
uno::Any SelectedCells::selectionBefore() const {
    return sheet_.book().selectedBefore().hasValue() ? uno::Any() : selection_->getSelection();
}

bool SelectedCells::areSelectedAlone() const {
    return cellsBefore_.size() == 1 && blockOf(cellsBefore_.front()) == block_ &&
           cellsBefore_.front().Sheet == sheet_.place();
}

/// What is being typed would be written to the same place of the sheet that comes to the top. It is
/// entered where it belongs as soon as another cell is selected.
void SelectedCells::finishTyping() {
    view_ = window_->getViewData();
    if (cellsBefore_.empty()) return;
    CalcDocument& book = sheet_.book();
    const auto onTop = areOfSeveralSheets(cellsBefore_)
                           ? std::dynamic_pointer_cast<SheetRecord>(book.activeSheet())
                           : book.sheetList().at(cellsBefore_.front().Sheet);
    if (!onTop) return;
    using Block = model::CellBlock;
    const auto goToCell = [&](std::int32_t row, std::int32_t column) {
        selection_->select(uno::Any(onTop->range(Block::cell(row, column))));
    };
    // The suite names a merged cell by its first one alone.
    const Block typed = blockOf(onTop->wholeCells(blockOf(cellsBefore_.front())));
    if (cellsBefore_.size() == 1 && typed.lastColumn < Block::lastColumnOfSheet) {
        goToCell(typed.firstRow, typed.lastColumn + 1);
    } else {
        // Whichever cell of these is typed in, one of the two is another.
        goToCell(0, 0);
        goToCell(Block::lastRowOfSheet, 0);
    }
}

SelectedCells::~SelectedCells() {
    if (!wasSelected_) asFarAsPossible([&] { putBack(); });
}

void SelectedCells::putBack() const {
    if (isUnseen_) {
        sheet_.book().selectAgainLater(before_);
        // A sheet that is shown for the copy alone must not stay on top.
        if (!shown_ || shown_->isHidden()) static_cast<void>(sheet_.book().window());
        return;
    }
    if (!view_.hasValue()) {
        selection_->select(before_);
        return;
    }
    // This selects the cell that the cursor is in, and selecting more than that scrolls.
    window_->restoreViewData(view_);
    if (cellsBefore_.size() == 1 && blockOf(cellsBefore_.front()).cells() == 1) return;
    const Scrolled scrolled(window_);
    selection_->select(before_);
    scrolled.putBack();
}

/// LibreOffice crashes when it asks a closed window for a copy, and the user may close it at any
/// time. The main thread closes windows: while that waits, one that takes the selection, or still
/// has one, is open. Nobody closes one that nobody sees.
uno::Reference<css::datatransfer::XTransferable> SelectedCells::copyOf(
    const uno::Reference<css::table::XCellRange>& wanted, bool isSelected) const {
    struct Taken {
        uno::Reference<uno::XInterface> selected;
        uno::Reference<css::datatransfer::XTransferable> copy;
    };
    const auto taken = std::make_shared<Taken>();
    const auto take = [=, cells = uno::Any(wanted), selection = selection_, copier = copier_] {
        bool isOpen = false;
        if (isSelected) {
            taken->selected.set(selection->getSelection(), uno::UNO_QUERY);
            isOpen = taken->selected.is();
        } else {
            isOpen = selection->select(cells);
        }
        if (!isOpen) throw css::lang::DisposedException("The workbook has been closed", {});
        taken->copy = copier->getTransferable();
    };
    if (isUnseen_)
        take();
    else
        onMainThread(sheet_.book().connection(), take);
    return taken->copy;
}

uno::Reference<css::datatransfer::XTransferable> SelectedCells::copy() const {
    if (auto copy = copyOf(cells_, wasSelected_); copy.is()) return copy;
    const model::CellBlock whole = withWholeArrays(sheet_, block_);
    const HiddenAround rest(sheet_, block_, whole);
    if (!rest.isHidden())
        office::refuse("Range.Copy", "LibreOffice copies no part of an array formula");
    const Scrolled scrolled(window_);
    const auto selectAgain = atEnd([&] {
        selection_->select(uno::Any(cells_));
        scrolled.putBack();
    });
    return copyOf(sheet_.range(whole), false);
}

/// Asked for by its name alone: the list of all offers, and the answer of one that is not offered,
/// cost more than the copy.
uno::Sequence<sal_Int8> SelectedCells::copyAs(const char* mimeType) {
    const css::datatransfer::DataFlavor flavour(rtl::OUString::createFromAscii(mimeType), "",
                                                cppu::UnoType<uno::Sequence<sal_Int8>>::get());
    const auto copied = [&] {
        const auto copy = this->copy();
        if (!copy.is()) office::refuse("Range.Copy", "These cells can't be copied");
        uno::Sequence<sal_Int8> bytes;
        copy->getTransferData(flavour) >>= bytes;
        return bytes;
    };
    try {
        return copied();
    } catch (const css::datatransfer::UnsupportedFlavorException&) {
        if (!wasSelected_ || isUnseen_) throw;
    }
    // While somebody types into the selected cell, the copy is of the text there.
    wasSelected_ = false;
    finishTyping();
    return copied();
}

}  // namespace libreoffice::excel

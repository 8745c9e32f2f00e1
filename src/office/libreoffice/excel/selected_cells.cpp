#include "office/libreoffice/excel/selected_cells.h"

#include <com/sun/star/datatransfer/XTransferableSupplier.hpp>
#include <com/sun/star/lang/DisposedException.hpp>

#include <memory>
#include <utility>

#include "office/failure.h"
#include "office/libreoffice/at_end.h"
#include "office/libreoffice/main_thread.h"

namespace libreoffice::excel {

namespace {

uno::Reference<css::frame::XController> windowOf(const CalcDocument& book) {
    auto window = book.controller();
    if (!window.is()) office::refuse("Range.Copy", "The workbook has no window to copy from");
    return window;
}

}  // namespace

ShownForNow::ShownForNow(SheetRecord& sheet) : sheet_(&sheet) {
    if (sheet.isShown()) {
        sheet_ = nullptr;
        return;
    }
    flag_.emplace(sheet.book());
    sheet.show(true);
}

ShownForNow::~ShownForNow() {
    if (sheet_ != nullptr) asFarAsPossible([&] { sheet_->show(false); });
}

SelectedCells::SelectedCells(SheetRecord& sheet, uno::Reference<css::table::XCellRange> cells)
    : connection_(sheet.book().connection()),
      cells_(std::move(cells)),
      window_(windowOf(sheet.book())),
      shown_(sheet),
      selection_(as<css::view::XSelectionSupplier>(window_)),
      before_(selection_->getSelection()) {}

SelectedCells::~SelectedCells() {
    asFarAsPossible([&] { selection_->select(before_); });
}

/// LibreOffice crashes when it asks a closed window for a copy, and the user may close it at any
/// time. The main thread closes windows: while that waits, one that takes the selection is open.
uno::Reference<css::datatransfer::XTransferable> SelectedCells::copy() const {
    const auto copy = std::make_shared<uno::Reference<css::datatransfer::XTransferable>>();
    const auto copier = as<css::datatransfer::XTransferableSupplier>(window_);
    onMainThread(connection_, [=, cells = uno::Any(cells_), selection = selection_] {
        if (!selection->select(cells))
            throw css::lang::DisposedException("The workbook has been closed", {});
        *copy = copier->getTransferable();
    });
    return *copy;
}

/// Asked for by its name alone: the list of all offers, and the answer of one that is not offered,
/// cost more than the copy.
uno::Sequence<sal_Int8> SelectedCells::copyAs(const char* mimeType) const {
    const auto copy = this->copy();
    if (!copy.is()) office::refuse("Range.Copy", "These cells can't be copied");
    const css::datatransfer::DataFlavor flavour(rtl::OUString::createFromAscii(mimeType), "",
                                                cppu::UnoType<uno::Sequence<sal_Int8>>::get());
    uno::Sequence<sal_Int8> bytes;
    copy->getTransferData(flavour) >>= bytes;
    return bytes;
}

}  // namespace libreoffice::excel

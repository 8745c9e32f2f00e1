#include "office/libreoffice/excel/selected_cells.h"

#include <com/sun/star/datatransfer/XTransferableSupplier.hpp>

#include "office/failure.h"
#include "office/libreoffice/at_end.h"

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

SelectedCells::SelectedCells(SheetRecord& sheet,
                             const uno::Reference<css::table::XCellRange>& cells)
    : window_(windowOf(sheet.book())),
      shown_(sheet),
      selection_(as<css::view::XSelectionSupplier>(window_)),
      before_(selection_->getSelection()) {
    selection_->select(uno::Any(cells));
}

SelectedCells::~SelectedCells() {
    asFarAsPossible([&] { selection_->select(before_); });
}

/// Asked for by its name alone: the list of all offers, and the answer of one that is not offered,
/// cost more than the copy.
uno::Sequence<sal_Int8> SelectedCells::copyAs(const char* mimeType) const {
    const auto copy = as<css::datatransfer::XTransferableSupplier>(window_)->getTransferable();
    if (!copy.is()) office::refuse("Range.Copy", "These cells can't be copied");
    const css::datatransfer::DataFlavor flavour(rtl::OUString::createFromAscii(mimeType), "",
                                                cppu::UnoType<uno::Sequence<sal_Int8>>::get());
    uno::Sequence<sal_Int8> bytes;
    copy->getTransferData(flavour) >>= bytes;
    return bytes;
}

}  // namespace libreoffice::excel

#include "office/libreoffice/excel/range_picture.h"

#include <com/sun/star/awt/Size.hpp>
#include <com/sun/star/datatransfer/XTransferableSupplier.hpp>
#include <com/sun/star/text/XTextRange.hpp>
#include <com/sun/star/view/XSelectionSupplier.hpp>

#include <cstdlib>
#include <optional>
#include <utility>

#include "office/failure.h"
#include "office/libreoffice/excel/calc_document.h"

namespace libreoffice::excel {

namespace {

/// Sizes that differ by less are the same but for rounding.
constexpr std::int32_t closeEnough = 100;

[[noreturn]] void fail(const char* why) {
    throw office::Failure(office::FailureNumber::ApplicationDefined, "Range.CopyPicture", why);
}

/// Shows a hidden sheet for a moment: the cells of a hidden one can be selected, but the copy of
/// them is empty.
class ShownForNow {
public:
    explicit ShownForNow(SheetRecord& sheet) : sheet_(&sheet) {
        if (sheet.isShown()) {
            sheet_ = nullptr;
            return;
        }
        flag_.emplace(sheet.book());
        sheet.show(true);
    }
    ShownForNow(const ShownForNow&) = delete;
    ShownForNow& operator=(const ShownForNow&) = delete;
    ~ShownForNow() {
        try {
            if (sheet_ != nullptr) sheet_->show(false);
        } catch (const uno::Exception&) {
            // The document or the suite has gone.
        }
    }

private:
    std::optional<KeptModifiedFlag> flag_;
    SheetRecord* sheet_;
};

/// Selects cells and puts the selection back that was there.
class SelectedForNow {
public:
    SelectedForNow(CalcDocument& book, const uno::Any& cells)
        : selection_(as<css::view::XSelectionSupplier>(book.controller())),
          before_(selection_->getSelection()) {
        selection_->select(cells);
    }
    SelectedForNow(const SelectedForNow&) = delete;
    SelectedForNow& operator=(const SelectedForNow&) = delete;
    ~SelectedForNow() {
        try {
            selection_->select(before_);
        } catch (const uno::Exception&) {
            // The document or the suite has gone.
        }
    }

private:
    uno::Reference<css::view::XSelectionSupplier> selection_;
    uno::Any before_;
};

/// The suite's vector format among what a copy offers. Asked for by its name alone: the list of all
/// offers, and the answer of one that is not offered, cost more than the picture.
uno::Sequence<sal_Int8> metafileOfSelection(CalcDocument& book) {
    const auto copy =
        as<css::datatransfer::XTransferableSupplier>(book.controller())->getTransferable();
    if (!copy.is()) fail("These cells can't be copied");
    const css::datatransfer::DataFlavor flavor(
        "application/x-openoffice-gdimetafile;windows_formatname=\"GDIMetaFile\"", "GDIMetaFile",
        cppu::UnoType<uno::Sequence<sal_Int8>>::get());
    uno::Sequence<sal_Int8> bytes;
    copy->getTransferData(flavor) >>= bytes;
    return bytes;
}

/// Columns behind the last one that the sheet has memory for are drawn with the default width. An
/// empty text in the last column of the block makes it have memory for all of them.
void allocateColumns(const SheetRecord& sheet, const model::CellBlock& block) {
    const KeptModifiedFlag flag(sheet.book());
    const auto corner = as<css::text::XTextRange>(
        sheet.sheet()->getCellByPosition(block.lastColumn, block.lastRow));
    if (corner->getString().isEmpty()) corner->setString("");
}

bool differs(const PictureSize& picture, const css::awt::Size& cells) {
    return std::abs(picture.width - cells.Width) > closeEnough ||
           std::abs(picture.height - cells.Height) > closeEnough;
}

}  // namespace

CellsPicture takePictureOfCells(SheetRecord& sheet,
                                const uno::Reference<css::table::XCellRange>& cells,
                                const model::CellBlock& block) {
    CalcDocument& book = sheet.book();
    if (!book.controller().is()) fail("The workbook has no window to copy from");
    const ShownForNow shown(sheet);
    const SelectedForNow selected(book, uno::Any(cells));
    uno::Sequence<sal_Int8> metafile = metafileOfSelection(book);
    const auto size = property<css::awt::Size>(cells, "Size");
    if (differs(sizeOfMetafile(metafile), size)) {
        allocateColumns(sheet, block);
        metafile = metafileOfSelection(book);
    }
    if (!metafile.hasElements() || size.Width <= 0 || size.Height <= 0) {
        fail("There is nothing to take a picture of");
    }
    return {metafile, {size.Width, size.Height}};
}

}  // namespace libreoffice::excel

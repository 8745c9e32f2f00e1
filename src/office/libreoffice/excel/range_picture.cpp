#include "office/libreoffice/excel/range_picture.h"

#include <com/sun/star/awt/Size.hpp>
#include <com/sun/star/datatransfer/XTransferableSupplier.hpp>
#include <com/sun/star/lang/XMultiServiceFactory.hpp>
#include <com/sun/star/sheet/XSheetCellRangeContainer.hpp>
#include <com/sun/star/text/XTextRange.hpp>
#include <com/sun/star/view/XSelectionSupplier.hpp>

#include <cstdlib>
#include <utility>

#include "office/failure.h"
#include "office/libreoffice/excel/picture_maker.h"
#include "office/libreoffice/excel/used_block.h"

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
    ShownForNow(CalcDocument& book, SheetPtr sheet) : sheet_(std::move(sheet)) {
        if (sheet_->isShown()) {
            sheet_.reset();
            return;
        }
        flag_.emplace(book);
        sheet_->show(true);
    }
    ShownForNow(const ShownForNow&) = delete;
    ShownForNow& operator=(const ShownForNow&) = delete;
    ~ShownForNow() {
        try {
            if (sheet_) sheet_->show(false);
        } catch (const uno::Exception&) {
            // The document or the suite has gone.
        }
    }

private:
    std::optional<KeptModifiedFlag> flag_;
    SheetPtr sheet_;
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

/// The part of a block that a picture is taken of: whole rows and columns are endless otherwise.
CellBlock picturedPart(const SheetPtr& sheet, const CellBlock& block) {
    if (!block.spansAllRows() && !block.spansAllColumns()) return block;
    const auto part = intersection(block, usedBlock(sheet));
    if (!part) fail("There is nothing in these rows or columns");
    return *part;
}

/// Columns behind the last one that the sheet has memory for are drawn with the default width. An
/// empty text in the last column of the block makes it have memory for all of them.
void allocateColumns(CalcDocument& book, const SheetPtr& sheet, const CellBlock& block) {
    const KeptModifiedFlag flag(book);
    const auto corner = as<css::text::XTextRange>(
        sheet->sheet()->getCellByPosition(block.lastColumn, block.lastRow));
    if (corner->getString().isEmpty()) corner->setString("");
}

bool differs(const PictureSize& picture, const css::awt::Size& cells) {
    return std::abs(picture.width - cells.Width) > closeEnough ||
           std::abs(picture.height - cells.Height) > closeEnough;
}

}  // namespace

uno::Any selectionOf(CalcDocument& book, const SheetPtr& sheet, const CellBlocks& blocks) {
    if (blocks.size() == 1) return uno::Any(sheet->cells(blocks.front()));
    const auto ranges = as<css::sheet::XSheetCellRangeContainer>(
        as<css::lang::XMultiServiceFactory>(book.model())
            ->createInstance("com.sun.star.sheet.SheetCellRanges"));
    const auto place = static_cast<sal_Int16>(sheet->place());
    for (const CellBlock& block : blocks) {
        ranges->addRangeAddress(
            {place, block.firstColumn, block.firstRow, block.lastColumn, block.lastRow}, false);
    }
    return uno::Any(ranges);
}

CopiedPicture takePictureOfCells(CalcDocument& book, const SheetPtr& sheet,
                                 const CellBlock& block) {
    const CellBlock part = picturedPart(sheet, block);
    if (!book.controller().is()) fail("The workbook has no window to copy from");
    const auto cells = sheet->cells(part);
    const ShownForNow shown(book, sheet);
    const SelectedForNow selected(book, uno::Any(cells));
    uno::Sequence<sal_Int8> metafile = metafileOfSelection(book);
    const auto size = property<css::awt::Size>(cells, "Size");
    if (differs(sizeOfMetafile(metafile), size)) {
        allocateColumns(book, sheet, part);
        metafile = metafileOfSelection(book);
    }
    if (!metafile.hasElements() || size.Width <= 0 || size.Height <= 0) {
        fail("There is nothing to take a picture of");
    }
    return {metafile, size.Width, size.Height};
}

}  // namespace libreoffice::excel

#include "office/libreoffice/excel/range_picture.h"

#include <com/sun/star/awt/Size.hpp>
#include <com/sun/star/table/CellContentType.hpp>
#include <com/sun/star/text/XTextRange.hpp>

#include <cmath>

#include "office/drawing/mended_metafile.h"
#include "office/drawing/metafile.h"
#include "office/failure.h"
#include "office/libreoffice/excel/calc_document.h"
#include "office/libreoffice/excel/selected_cells.h"
#include "office/libreoffice/excel/unrecorded.h"

namespace libreoffice::excel {

namespace {

/// Sizes that differ by less are the same but for rounding.
constexpr double closeEnough = 100;

constexpr const char* metafileType =
    "application/x-openoffice-gdimetafile;windows_formatname=\"GDIMetaFile\"";

/// Columns behind the last one that the sheet has memory for are drawn with the default width. An
/// empty text in the last column of the block makes it have memory for all of them.
void allocateColumns(const SheetRecord& sheet, const model::CellBlock& block) {
    const KeptModifiedFlag flag(sheet.book());
    const Unrecorded quiet(sheet.book());
    const auto corner = sheet.sheet()->getCellByPosition(block.lastColumn, block.lastRow);
    if (corner->getType() == css::table::CellContentType_EMPTY)
        as<css::text::XTextRange>(corner)->setString("");
}

bool differs(const office::drawing::MetafileSize& picture, const css::awt::Size& cells) {
    return std::abs(picture.width - cells.Width) > closeEnough ||
           std::abs(picture.height - cells.Height) > closeEnough;
}

}  // namespace

uno::Sequence<sal_Int8> takePictureOfCells(SheetRecord& sheet,
                                           const uno::Reference<css::table::XCellRange>& cells,
                                           const model::CellBlock& block,
                                           const css::awt::Size& size) {
    SelectedCells selected(sheet, cells, block);
    uno::Sequence<sal_Int8> metafile = selected.copyAs(metafileType);
    if (differs(office::drawing::sizeOfMetafile(bytesOf(metafile)), size)) {
        allocateColumns(sheet, block);
        metafile = selected.copyAs(metafileType);
    }
    if (!metafile.hasElements() || size.Width <= 0 || size.Height <= 0) {
        office::refuse("Range.CopyPicture", "There is nothing to take a picture of");
    }
    office::drawing::mendMetafileOfCells(
        {reinterpret_cast<char*>(metafile.getArray()), bytesOf(metafile).size()}, size.Width);
    return metafile;
}

}  // namespace libreoffice::excel

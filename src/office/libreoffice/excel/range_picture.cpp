#include "office/libreoffice/excel/range_picture.h"

#include <com/sun/star/awt/Size.hpp>
#include <com/sun/star/table/CellContentType.hpp>
#include <com/sun/star/text/XTextRange.hpp>

#include <cmath>
#include <utility>
#include <vector>

#include "office/drawing/mended_metafile.h"
#include "office/drawing/metafile.h"
#include "office/failure.h"
#include "office/libreoffice/excel/calc_document.h"
#include "office/libreoffice/excel/held_styles.h"
#include "office/libreoffice/excel/right_indents.h"
#include "office/libreoffice/excel/scratch_book.h"
#include "office/libreoffice/excel/selected_cells.h"
#include "office/libreoffice/excel/unrecorded.h"

namespace libreoffice::excel {

namespace {

/// Sizes that differ by less are the same but for rounding.
constexpr double closeEnough = 100;

/// Columns behind the last one that the sheet has memory for are drawn with the default width. An
/// empty text in the last column of the block makes it have memory for all of them.
void allocateColumns(const SheetRecord& sheet, const model::CellBlock& block) {
    const UnheardByLooks unheard(sheet.book());
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
bool differs(const uno::Sequence<sal_Int8>& metafile, const css::awt::Size& cells) {
    return differs(office::drawing::sizeOfMetafile(bytesOf(metafile)), cells);
}

/// As the cells are copied. The window shows them selected no longer than that takes.
struct CopyOfCells {
    uno::Sequence<sal_Int8> metafile;
    /// Where it was asked for.
    uno::Sequence<sal_Int8> object;
};

CopyOfCells copyOf(SheetRecord& sheet, const uno::Reference<css::table::XCellRange>& cells,
                   const model::CellBlock& block, const css::awt::Size& size, bool withObject) {
    SelectedCells selected(sheet, cells, block);
    CopyOfCells copy;
    copy.metafile = selected.copyAs(metafileType);
    if (differs(copy.metafile, size)) {
        allocateColumns(sheet, block);
        copy.metafile = selected.copyAs(metafileType);
    }
    if (withObject) copy.object = selected.copyAs(embeddedType);
    return copy;
}

/// As the sheet shows the cells.
uno::Sequence<sal_Int8> metafileOf(SheetRecord& sheet,
                                   const uno::Reference<css::table::XCellRange>& cells,
                                   const model::CellBlock& block, const css::awt::Size& size) {
    // What may take its time goes before the cells are selected, where a user may be typing.
    const auto conditions = sheet.book().looks().conditionsOn(sheet, block);
    const UntoldByCopy untold = {heldStylesOn(sheet, block, conditions),
                                 numbersAround(sheet, block, conditions)};
    CopyOfCells copy = copyOf(sheet, cells, block, size, !untold.isNothing());
    if (untold.isNothing()) return std::move(copy.metafile);
    try {
        auto drawn = drawWith(untold, sheet.book().connection(), copy.object, block);
        if (!differs(drawn, size)) return drawn;
    } catch (const uno::Exception&) {
        // The copy's own picture is better than none.
    }
    return std::move(copy.metafile);
}

}  // namespace

uno::Sequence<sal_Int8> takePictureOfCells(SheetRecord& sheet,
                                           const uno::Reference<css::table::XCellRange>& cells,
                                           const model::CellBlock& block,
                                           const css::awt::Size& size) {
    std::vector<office::drawing::IndentedCell> indented;
    if (sheet.book().looks().hasIndents(sheet)) indented = rightIndentsOn(sheet, block);
    uno::Sequence<sal_Int8> metafile = metafileOf(sheet, cells, block, size);
    if (!metafile.hasElements() || size.Width <= 0 || size.Height <= 0) {
        office::refuse("Range.CopyPicture", "There is nothing to take a picture of");
    }
    office::drawing::mendMetafileOfCells(
        {reinterpret_cast<char*>(metafile.getArray()), bytesOf(metafile).size()}, size.Width,
        std::move(indented));
    return metafile;
}

}  // namespace libreoffice::excel

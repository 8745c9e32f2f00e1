#include "office/libreoffice/excel/cell_range.h"

#include <com/sun/star/sheet/XSheetOperation.hpp>
#include <com/sun/star/util/XMergeable.hpp>

#include "office/libreoffice/excel/calc_document.h"
#include "office/libreoffice/excel/cell_values.h"
#include "office/libreoffice/excel/copied.h"
#include "office/libreoffice/excel/range_picture.h"
#include "office/libreoffice/excel/table_of_cells.h"
#include "office/libreoffice/excel/unrecorded.h"
#include "office/libreoffice/units.h"
#include "office/model/excel/objects.h"

namespace libreoffice::excel {

const uno::Reference<css::table::XCellRange>& CellRange::range() {
    if (!range_.is()) range_ = sheet_->range(block_);
    return range_;
}

office::Table CellRange::read() {
    return readCells(sheet_->book().formats(), range(), block_);
}

void CellRange::write(const office::Table& values) {
    const Unrecorded quiet(sheet_->book());
    writeCells(sheet_->book().formats(), range(), block_, values);
}

void CellRange::clear() {
    const Unrecorded quiet(sheet_->book());
    as<css::sheet::XSheetOperation>(range())->clearContents(contentsOfCells);
}

std::string CellRange::numberFormat() {
    return sheet_->book().formats().codeOf(property<sal_Int32>(range(), "NumberFormat"));
}

void CellRange::setNumberFormat(const std::string& code) {
    const Unrecorded quiet(sheet_->book());
    setProperty(range(), "NumberFormat", sheet_->book().formats().keyFor(code));
}

model::Box CellRange::place() {
    const auto [corner, size] = placeOf(range());
    return {pointsOf(corner.X), pointsOf(corner.Y), pointsOf(size.Width), pointsOf(size.Height)};
}

bool CellRange::areBlank() {
    return !as<css::util::XMergeable>(range())->getIsMerged() && excel::areBlank(*sheet_, range());
}

office::CopiedPtr CellRange::copy(office::CopySource source) {
    // LibreOffice gives hidden rows and columns the size of one of its units.
    constexpr std::int32_t thinnest = 3;
    // A name that was given to a merged cell names its first one alone.
    const auto cells = sheet_->wholeCells(block_);
    const model::CellBlock block = blockOf(cells);
    // What is bound to whole rows or columns stays bound to them.
    if (!(block == block_))
        source.address =
            model::addressOf(model::around(model::blockOf(source.address).value_or(block), block));
    const css::awt::Size size = placeOf(cells).size;
    if (size.Width <= thinnest || size.Height <= thinnest)
        office::refuse("Range.Copy", "There is nothing to copy: these rows or columns are hidden");
    if (source.kind == office::CopySource::Kind::Cells)
        return std::make_shared<CopiedCells>(sheet_, std::move(source), cells, block, size);
    return std::make_shared<CopiedPicture>(sheet_->book().desk(), std::move(source),
                                           takePictureOfCells(*sheet_, cells, block, size), size);
}

}  // namespace libreoffice::excel

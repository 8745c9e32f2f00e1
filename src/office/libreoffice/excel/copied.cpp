#include "office/libreoffice/excel/copied.h"

#include <com/sun/star/awt/Size.hpp>
#include <com/sun/star/text/XTextRange.hpp>

#include <utility>

#include "office/failure.h"
#include "office/libreoffice/excel/calc_document.h"
#include "office/libreoffice/excel/contents_of_cells.h"
#include "office/libreoffice/excel/range_picture.h"
#include "office/libreoffice/excel/table_of_cells.h"
#include "office/libreoffice/guard.h"
#include "office/libreoffice/units.h"

namespace libreoffice::excel {

namespace {

/// What was copied is asked for more by objects of another application, which know nothing of this
/// suite's exceptions.
template <class Statement>
auto translated(const Desk& desk, Statement statement) {
    return libreoffice::translated(desk.connection(), "Copy", statement);
}

}  // namespace

CopiedPicture::CopiedPicture(Desk& desk, office::CopySource source,
                             uno::Sequence<sal_Int8> metafile, const css::awt::Size& size)
    : CopiedHere(std::move(source), size),
      desk_(desk),
      metafile_(std::move(metafile)) {}

CopiedPicture::CopiedPicture(Desk& desk, office::CopySource source,
                             uno::Reference<css::graphic::XGraphic> graphic,
                             const css::awt::Size& size)
    : CopiedHere(std::move(source), size),
      desk_(desk),
      graphic_(std::move(graphic)) {}

uno::Sequence<sal_Int8> CopiedPicture::metafile() const {
    if (!graphic_.is()) return metafile_;
    return translated(desk_, [&] { return pictureMaker(desk_).suite().metafileOf(graphic_); });
}

office::Picture CopiedPicture::picture(office::Sharpness sharpness) const {
    return translated(desk_,
                      [&] { return pictureMaker(desk_).metafile(metafile(), size(), sharpness); });
}

uno::Reference<css::graphic::XGraphic> CopiedPicture::graphic() const {
    if (graphic_.is()) return graphic_;
    return translated(desk_, [&] { return pictureMaker(desk_).suite().graphicOf(metafile_); });
}

CopiedChart::CopiedChart(CalcDocument& book, office::CopySource source,
                         uno::Reference<css::drawing::XShape> shape, SheetOfChart home,
                         std::shared_ptr<const void> owner)
    : CopiedHere(std::move(source), areaOf(shape)),
      book_(book.shared_from_this()),
      owner_(std::move(owner)),
      home_(std::move(home)),
      shape_(std::move(shape)) {}

CalcDocument& CopiedChart::book() const {
    book_->requireOpen("Copy");
    return *book_;
}

office::Picture CopiedChart::picture(office::Sharpness sharpness) const {
    Desk& desk = book().desk();
    return translated(desk, [&] { return pictureMaker(desk).chart(shape_, size(), sharpness); });
}

uno::Reference<css::graphic::XGraphic> CopiedChart::graphic() const {
    return translated(book().desk(), [&] { return lookOf(shape_).graphic; });
}

std::optional<office::CellContents> CopiedChart::contentsOf(const std::string& sheet,
                                                            const std::string& address) const {
    CalcDocument& workbook = book();
    return translated(workbook.desk(), [&]() -> std::optional<office::CellContents> {
        const SheetRecordPtr found = workbook.sheetList().find(sheet);
        const auto block = office::model::excel::blockOf(address);
        if (!found || !block) return std::nullopt;
        return readContents(*found, *block);
    });
}

std::optional<std::string> CopiedChart::shownTextOf(const std::string& sheet,
                                                    const std::string& address) const {
    CalcDocument& workbook = book();
    return translated(workbook.desk(), [&]() -> std::optional<std::string> {
        const SheetRecordPtr found = workbook.sheetList().find(sheet);
        const auto block = office::model::excel::blockOf(address);
        if (!found || !block) return std::nullopt;
        return fromUno(
            as<css::text::XTextRange>(found->range(*block)->getCellByPosition(0, 0))->getString());
    });
}

CopiedCells::CopiedCells(SheetRecordPtr sheet, office::CopySource source,
                         uno::Reference<css::table::XCellRange> cells,
                         const office::model::excel::CellBlock& block, const css::awt::Size& size)
    : CopiedHere(std::move(source), size),
      sheet_(std::move(sheet)),
      book_(sheet_->book().shared_from_this()),
      cells_(std::move(cells)),
      block_(block) {}

SheetRecord& CopiedCells::sheet() const {
    book_->requireOpen("Copy");
    return *sheet_;
}

office::Picture CopiedCells::picture(office::Sharpness sharpness) const {
    SheetRecord& source = sheet();
    Desk& desk = source.book().desk();
    return translated(desk, [&] {
        return pictureMaker(desk).metafile(takePictureOfCells(source, cells_, block_, size()),
                                           size(), sharpness);
    });
}

uno::Reference<css::graphic::XGraphic> CopiedCells::graphic() const {
    SheetRecord& source = sheet();
    Desk& desk = source.book().desk();
    return translated(desk, [&] {
        return pictureMaker(desk).suite().graphicOf(
            takePictureOfCells(source, cells_, block_, size()));
    });
}

office::TableLook CopiedCells::table() const {
    return tableUpTo(mostCellsOfTable);
}

office::TableLook CopiedCells::tableOfPage() const {
    // A chart lies on blank cells most times, and they cost a fraction of the others.
    SheetRecord& source = sheet();
    auto blank =
        translated(source.book().desk(), [&] { return tableOfBlankCells(source, cells_); });
    // Browsers show more, but slowly.
    return blank ? *std::move(blank) : tableUpTo(100000);
}

office::TableLook CopiedCells::tableUpTo(std::size_t mostCells) const {
    SheetRecord& source = sheet();
    return translated(source.book().desk(),
                      [&] { return tableOfCells(source, cells_, block_, mostCells); });
}

}  // namespace libreoffice::excel

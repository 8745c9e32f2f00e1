#include <com/sun/star/awt/FontUnderline.hpp>
#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/table/BorderLine2.hpp>
#include <com/sun/star/table/CellHoriJustify.hpp>
#include <com/sun/star/table/XColumnRowRange.hpp>
#include <com/sun/star/text/WritingMode2.hpp>

#include "live/live_suite.h"
#include "office/drawing/metafile.h"
#include "office/files.h"
#include "office/libreoffice/excel/calc_document.h"
#include "office/libreoffice/excel/copied.h"
#include "office/libreoffice/excel/picture_maker.h"
#include "support/png_file.h"

namespace live {

namespace {

using namespace libreoffice;

/// What is put right in the cells that the suite copies.
class ExcelCopiedCells : public ExcelLive {};

/// How dark the columns of pixels from one to another are in all.
double inkOf(const support::PngPixels& picture, std::uint32_t from, std::uint32_t to) {
    double ink = 0;
    for (std::uint32_t y = 0; y < picture.height; ++y)
        for (std::uint32_t x = from; x < to; ++x)
            ink += 255 - picture.rgba[std::size_t{4} * (y * picture.width + x)];
    return ink;
}

/// Of cells, by the suite itself.
double inkDrawnBySuite(excel::PictureMaker& maker, const office::CopiedPtr& cells,
                       const std::string& path) {
    const auto& copied = dynamic_cast<const excel::CopiedPicture&>(*cells);
    maker.suite().writeMetafile(copied.metafile(), copied.size(), path);
    const support::PngPixels picture = support::pixelsOf(office::bytesOf(path).value_or(""));
    return inkOf(picture, 0, picture.width);
}

TEST_F(ExcelCopiedCells, ShowsLinesAlongTextsWhereTheSuiteDrawsThemToo) {
    const Object book = open("cells.xlsx");
    const Value text = sheet(book, "Data").get("Range", "A1");
    const auto cells = desk->active<excel::CalcDocument>()->sheetList().find("Data")->range(
        excel::model::CellBlock::cell(0, 0));
    const auto ink = [&](const char* property, std::int16_t line) {
        const auto values = as<css::beans::XPropertySet>(cells);
        values->setPropertyValue(toUno(property), uno::Any(line));
        text.call("CopyPicture", 1, -4147);
        values->setPropertyValue(toUno(property), uno::Any(std::int16_t{0}));
        return inkDrawnBySuite(excel::pictureMaker(*desk), desk->clipboard().copied,
                               file("lines.png"));
    };
    const double plain = ink("CharUnderline", 0);
    EXPECT_GT(ink("CharUnderline", css::awt::FontUnderline::SINGLE), 1.1 * plain);
    EXPECT_GT(ink("CharOverline", css::awt::FontUnderline::SINGLE), 1.1 * plain);
}

TEST_F(ExcelCopiedCells, ShowsBothOuterBordersOfCellsFromRightToLeft) {
    const Object book = open("tables.xlsx");
    const auto looks = desk->active<excel::CalcDocument>()->sheetList().find("Looks");
    setProperty(looks->sheet(), "TableLayout", sal_Int16{css::text::WritingMode2::RL_TB});
    sheet(book, "Looks").get("Range", "D3").put("Value", std::string(40, 'm'));
    for (const char* bordered : {"A2:B3", "D2:F3"}) {
        sheet(book, "Looks").get("Range", bordered).call("CopyPicture", 1, -4147);
        const support::PngPixels picture = support::pixelsOf(
            desk->clipboard().copied->picture(office::Sharpness::Crisp).png.get());
        const double line = 60.0 * picture.height;
        constexpr std::uint32_t edge = 4;
        EXPECT_GT(inkOf(picture, 0, edge), line) << bordered;
        EXPECT_GT(inkOf(picture, picture.width - edge, picture.width), line) << bordered;
    }
}

/// Fills cover the outermost pixels, and of borders nothing is cut off.
TEST_F(ExcelCopiedCells, LeadsFillsAndBordersToTheEdgesOfThePicture) {
    const Object book = open("cells.xlsx");
    const Object data = sheet(book, "Data");
    const auto cells =
        desk->active<excel::CalcDocument>()->sheetList().find("Data")->range({9, 44, 11, 46});
    const auto expectDark = [&](std::uint32_t edge) {
        data.get("Range", "J45:L47").call("CopyPicture", 1, -4147);
        const support::PngPixels picture = support::pixelsOf(
            desk->clipboard().copied->picture(office::Sharpness::Crisp).png.get());
        const double dark = 240.0 * edge;
        EXPECT_GT(inkOf(picture, 0, edge), dark * picture.height);
        EXPECT_GT(inkOf(picture, picture.width - edge, picture.width), dark * picture.height);
        const auto inkOfRows = [&](std::uint32_t from) {
            const auto first = picture.rgba.begin() + std::ptrdiff_t{4} * picture.width * from;
            return inkOf({picture.width, edge, {first, picture.rgba.end()}}, 0, picture.width);
        };
        EXPECT_GT(inkOfRows(0), dark * picture.width);
        EXPECT_GT(inkOfRows(picture.height - edge), dark * picture.width);
    };
    setProperty(cells, "CellBackColor", std::int32_t{0});
    expectDark(1);
    setProperty(cells, "CellBackColor", std::int32_t{-1});
    css::table::BorderLine2 line;
    line.LineWidth = 100;
    line.OuterLineWidth = 100;
    for (const char* side : {"LeftBorder", "RightBorder", "TopBorder", "BottomBorder"})
        setProperty(cells, side, line);
    expectDark(10);
}

/// Below a thin first row that has no border itself.
TEST_F(ExcelCopiedCells, LeavesBordersFurtherInsideWhereTheyAre) {
    const Object book = open("cells.xlsx");
    const auto cells =
        desk->active<excel::CalcDocument>()->sheetList().find("Data")->range({9, 44, 11, 46});
    constexpr sal_Int32 thin = 106;
    const auto rows = as<css::table::XColumnRowRange>(cells)->getRows();
    const uno::Reference<uno::XInterface> first(rows->getByIndex(0), uno::UNO_QUERY_THROW);
    setProperty(first, "Height", thin);
    css::table::BorderLine2 line;
    line.LineWidth = 26;
    line.OuterLineWidth = 26;
    setProperty(cells->getCellRangeByPosition(0, 1, 2, 1), "TopBorder", line);
    sheet(book, "Data").get("Range", "J45:L47").call("CopyPicture", 1, -4147);
    const auto& copied = dynamic_cast<const excel::CopiedPicture&>(*desk->clipboard().copied);
    const auto drawn = office::drawing::readMetafile(libreoffice::bytesOf(copied.metafile()));
    std::size_t borders = 0;
    for (const auto& operation : drawn.operations) {
        const auto* shape = std::get_if<office::drawing::Metafile::Shape>(&operation.what);
        if (shape == nullptr || !shape->pen) continue;
        ++borders;
        EXPECT_NEAR(shape->outline.at(0).points.at(0).y, thin, 40);
    }
    EXPECT_GT(borders, 0U);
}

/// The texts of a copied picture, from left to right in each row.
std::vector<office::drawing::Metafile::Text> textsOf(const office::CopiedPtr& cells) {
    const auto& copied = dynamic_cast<const excel::CopiedPicture&>(*cells);
    const auto drawn = office::drawing::readMetafile(libreoffice::bytesOf(copied.metafile()));
    std::vector<office::drawing::Metafile::Text> texts;
    for (const auto& operation : drawn.operations) {
        if (const auto* text = std::get_if<office::drawing::Metafile::Text>(&operation.what))
            texts.push_back(*text);
    }
    return texts;
}

/// Texts that differ in their numbers' formats alone, and such as are wrapped. Others stay where
/// they are: a short one behind the edge, one before a hidden column, and one without room.
TEST_F(ExcelCopiedCells, KeepsTheIndentOfTextsAtTheRight) {
    const Object book = open("cells.xlsx");
    const Object data = sheet(book, "Data");
    const auto cells =
        desk->active<excel::CalcDocument>()->sheetList().find("Data")->range({9, 39, 13, 42});
    const auto at = [&](std::int32_t column, std::int32_t row) {
        return cells->getCellByPosition(column, row);
    };
    setProperty(cells, "HoriJustify", css::table::CellHoriJustify_RIGHT);
    setProperty(cells, "ParaIndent", std::int16_t{300});
    for (std::int32_t row = 0; row < 2; ++row)
        setProperty(at(4, row), "ParaIndent", std::int16_t{0});
    data.get("Range", "J40:N40").put("Value", 7);
    data.get("Range", "J41:M41").put("Value", "word");
    data.get("Range", "N41").put("Value", 7);
    for (std::int32_t i = 1; i < 3; ++i) setProperty(at(i, 0), "NumberFormat", i);
    setProperty(at(3, 0), "IsTextWrapped", true);
    data.get("Range", "J42:L42").put("Value", 7);
    data.get("Range", "N42").put("Value", 7);
    for (const std::int32_t plain : {1, 2, 4})
        setProperty(at(plain, 2), "ParaIndent", std::int16_t{0});
    for (const std::int32_t left : {1, 4})
        setProperty(at(left, 2), "HoriJustify", css::table::CellHoriJustify_LEFT);
    setProperty(at(0, 2), "ParaIndent", std::int16_t{600});
    data.get("Range", "J43:K43").put("Value", 12345.25);
    setProperty(at(1, 3), "NumberFormat", 4);

    const double column = data.get("Range", "J40").get("Width").toDouble() * 2540 / 72;
    constexpr double margin = 50, indent = 300, rounding = 60;
    data.get("Range", "J40:N41").call("CopyPicture", 1, -4147);
    const auto indented = textsOf(desk->clipboard().copied);
    ASSERT_EQ(indented.size(), 10U);
    for (std::size_t i = 0; i < indented.size(); ++i) {
        const double edge = column * static_cast<double>(i % 5 + 1);
        EXPECT_NEAR(edge - indented[i].start.x - indented[i].width,
                    i % 5 == 4 ? margin : margin + indent, rounding)
            << i;
    }
    const auto columns = as<css::table::XColumnRowRange>(cells)->getColumns();
    const uno::Reference<uno::XInterface> hidden(columns->getByIndex(3), uno::UNO_QUERY_THROW);
    setProperty(hidden, "IsVisible", false);
    data.get("Range", "J42:N43").call("CopyPicture", 1, -4147);
    const auto others = textsOf(desk->clipboard().copied);
    ASSERT_EQ(others.size(), 6U);
    EXPECT_NEAR(others[1].start.x, column + margin, rounding);
    EXPECT_NEAR(others[2].start.x + others[2].width, 3 * column - margin, rounding);
    EXPECT_NEAR(others[3].start.x, 3 * column + margin, rounding);
    EXPECT_NEAR(others[5].start.x + others[5].width, 2 * column - margin, rounding);
}

TEST_F(ExcelCopiedCells, DrawsColumnsBehindTheLastFilledOneAsWideAsTheyAre) {
    const Object book = open("cells.xlsx");
    const Value range = sheet(book, "Wide").get("Range", "A1:BK6");
    range.call("CopyPicture");
    const auto& copied = dynamic_cast<const excel::CopiedPicture&>(*desk->clipboard().copied);
    const auto drawn = office::drawing::sizeOfMetafile(libreoffice::bytesOf(copied.metafile()));
    EXPECT_NEAR(drawn.width, copied.size().Width, 100);
    EXPECT_NEAR(copied.widthPt(), range.get("Width").toDouble(), 0.5);
    EXPECT_TRUE(book.get("Saved").toBool());
}

}  // namespace

}  // namespace live

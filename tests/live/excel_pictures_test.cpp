#include <com/sun/star/awt/Size.hpp>
#include <com/sun/star/container/XChild.hpp>
#include <com/sun/star/container/XNamed.hpp>
#include <com/sun/star/drawing/XShapeGrouper.hpp>
#include <com/sun/star/drawing/XShapes.hpp>
#include <com/sun/star/frame/XStorable.hpp>
#include <com/sun/star/lang/DisposedException.hpp>
#include <com/sun/star/style/XStyle.hpp>
#include <com/sun/star/view/XSelectionSupplier.hpp>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <iterator>
#include <tuple>

#include "live/live_suite.h"
#include "office/drawing/metafile.h"
#include "office/libreoffice/connection.h"
#include "office/libreoffice/excel/calc_document.h"
#include "office/libreoffice/excel/cell_styles.h"
#include "office/libreoffice/excel/copied.h"
#include "office/libreoffice/excel/held_styles.h"
#include "office/libreoffice/excel/picture_maker.h"
#include "office/libreoffice/excel/selected_cells.h"
#include "support/png_file.h"

namespace live {

namespace {

using namespace libreoffice;
using Names = std::vector<std::string>;

std::string bytesOf(const std::string& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// Whether the picture has an alpha channel, by the kind of colour in the head of the file.
bool isTranslucent(const std::string& path) {
    constexpr std::size_t colourKind = 25;
    return (bytesOf(path).at(colourKind) & 4) != 0;
}

class ExcelPictures : public ExcelLive {
protected:
    [[nodiscard]] std::string exported(const Value& chart, const char* name = "chart.png") const {
        const std::string path = file(name);
        chart.call("Export", arg("Filename", path), arg("FilterName", "PNG"));
        desk->drawingRoom->complete(path);
        return path;
    }
    /// Excel's way from a range to a picture file.
    [[nodiscard]] std::string pictureOf(const Value& range, const char* name = "range.png") const {
        range.call("CopyPicture", arg("Appearance", 1), arg("Format", -4147));
        const Value holder = range.get("Worksheet")
                                 .call("ChartObjects")
                                 .call("Add", 0, 0, range.get("Width"), range.get("Height"));
        holder.call("Activate");
        holder.get("Chart").call("Paste");
        std::string path = exported(holder.get("Chart"), name);
        holder.call("Delete");
        return path;
    }
    [[nodiscard]] std::string blank(double width, double height) const {
        const Value holder =
            app.get("ActiveSheet").call("ChartObjects").call("Add", 0, 0, width, height);
        return exported(holder.get("Chart"), "blank.png");
    }
    [[nodiscard]] excel::ChartShapePtr shapeOf(const char* sheetName, std::size_t place) const {
        const auto active = desk->active<excel::CalcDocument>();
        return active->sheetList().find(sheetName)->chartShapes().all().at(place);
    }
};

TEST_F(ExcelPictures, ExportsChartsCrispAtTheirTrueSizeAndTransparentWhereTheirBackgroundIs) {
    const Object book = open("charts.xlsx");
    const std::pair<const char*, bool> charts[] = {
        {"Plain", false}, {"Clear", true}, {"Veiled", true}, {"Dark", false}};
    for (const auto& [name, translucent] : charts) {
        const Value object = sheet(book, "Data").call("ChartObjects", name);
        const std::string path = exported(object.get("Chart"));
        const support::PngSize size = support::pngSizeOf(path);
        const auto box =
            desk->active<excel::CalcDocument>()->findSheet("Data")->findChart(name)->box();
        EXPECT_NEAR(size.dotsPerInch(), 288, 1) << name;
        EXPECT_NEAR(size.widthPoints(), box.width, 0.5) << name;
        EXPECT_NEAR(size.heightPoints(), box.height, 0.5) << name;
        EXPECT_GT(bytesOf(path).size(), 2 * bytesOf(blank(360, 216)).size()) << name;
        EXPECT_EQ(isTranslucent(path), translucent) << name;
    }
}

/// Of the colours of all pixels.
double meanDifference(const std::string& one, const std::string& other) {
    const support::PngPixels first = support::pixelsOf(one);
    const support::PngPixels second = support::pixelsOf(other);
    if (first.rgba.size() != second.rgba.size()) return 255;
    double sum = 0;
    for (std::size_t i = 0; i < first.rgba.size(); ++i)
        sum += std::abs(first.rgba[i] - second.rgba[i]);
    return sum / static_cast<double>(first.rgba.size());
}

TEST_F(ExcelPictures, LooksInTheDrawingRoomAsTheSuiteDrawsIt) {
    const Object book = open("cells.xlsx");
    excel::PictureMaker& maker = excel::pictureMaker(*desk);
    const std::string own = file("own.png");
    for (const auto& [name, cells] : {std::pair{"Data", "A1:C12"}, std::pair{"Wide", "A1:C4"}}) {
        sheet(book, name).get("Range", cells).call("CopyPicture", 1, -4147);
        const auto& copied = dynamic_cast<const excel::CopiedPicture&>(*desk->clipboard().copied);
        EXPECT_EQ(maker.drawnOtherwise(copied.metafile()), "");
        maker.suite().writeMetafile(copied.metafile(), copied.size(), own);
        EXPECT_LT(meanDifference(copied.picture(office::Sharpness::Crisp).png.get(), bytesOf(own)),
                  1)
            << name;
    }
    const Object charts = open("charts.xlsx");
    const auto plain = shapeOf("Data", 0);
    const auto metafile = maker.suite().metafileOf(excel::lookOf(plain->shape()).graphic);
    EXPECT_EQ(maker.drawnOtherwise(metafile), "");
    maker.suite().writeChart(plain->shape(), own);
    const auto ours =
        maker.chart(plain->shape(), plain->shape()->getSize(), office::Sharpness::Crisp);
    EXPECT_LT(meanDifference(ours.png.get(), bytesOf(own)), 1);
}

TEST_F(ExcelPictures, ShowsMergedCellsWhole) {
    const Object looks = sheet(open("tables.xlsx"), "Looks");
    const Value whole = looks.get("Range", "A2:B3");
    for (const char* part : {"A2", "B3"}) {
        looks.get("Range", part).call("Copy");
        EXPECT_EQ(desk->clipboard().copied->source().address, "$A$2:$B$3") << part;
        const support::PngSize size = support::pngSizeOf(pictureOf(looks.get("Range", part)));
        EXPECT_NEAR(size.widthPoints(), whole.get("Width").toDouble(), 0.5) << part;
        EXPECT_NEAR(size.heightPoints(), whole.get("Height").toDouble(), 0.5) << part;
    }
    looks.get("Range", "B:B").call("Copy");
    EXPECT_EQ(desk->clipboard().copied->source().address, "$A:$B");
}

TEST_F(ExcelPictures, ShowsTheDataOfTheMoment) {
    const Object book = open("charts.xlsx");
    const Object data = sheet(book, "Data");
    const Value chart = data.call("ChartObjects", "Plain").get("Chart");
    const std::string before = bytesOf(exported(chart));
    EXPECT_EQ(bytesOf(exported(chart)), before);
    data.get("Range", "B2").put("Value", 500);
    EXPECT_NE(bytesOf(exported(chart)), before);
}

TEST_F(ExcelPictures, FindsTheLastChartOfManyForTheCallsOfTheFirstAndEachOneHoweverOften) {
    const Object book = open("many.xlsx");
    const Value charts = sheet(book, "Many").get("ChartObjects");
    for (std::int32_t i = 0; i < 400; ++i) {
        ASSERT_EQ(charts.get("Item", i % 40 + 1).get("Name").toText(),
                  "Chart " + std::to_string(i % 40 + 1));
    }
    const auto export1 = [&](const char* name) {
        return callsOf([&] { static_cast<void>(exported(charts.get("Item", name).get("Chart"))); });
    };
    static_cast<void>(export1("Chart 2"));
    static_cast<void>(export1("Chart 39"));
    const auto first = export1("Chart 1");
    EXPECT_LE(export1("Chart 40"), first + 1);
    EXPECT_LE(export1("Chart 1"), 8U);
}

TEST_F(ExcelPictures, FollowsChartsThatTheUserRenamesGroupsAndDeletes) {
    const Object book = open("charts.xlsx");
    const Value charts = sheet(book, "Data").get("ChartObjects");
    EXPECT_EQ(namesIn(charts), (Names{"Plain", "Clear", "Veiled", "Dark"}));
    as<css::container::XNamed>(shapeOf("Data", 0)->shape())->setName("Renamed");
    EXPECT_EQ(charts.get("Item", 1).get("Name").toText(), "Renamed");
    EXPECT_EQ(charts.get("Item", "Renamed").get("Name").toText(), "Renamed");
    EXPECT_EQ(failureOf([&] { charts.get("Item", "Plain"); }), 9);

    const auto shapes =
        as<css::drawing::XShapes>(connection()->create("com.sun.star.drawing.ShapeCollection"));
    shapes->add(shapeOf("Data", 2)->shape());
    shapes->add(shapeOf("Data", 3)->shape());
    const auto page = as<css::container::XChild>(shapeOf("Data", 0)->shape())->getParent();
    as<css::drawing::XShapeGrouper>(page)->group(shapes);
    EXPECT_EQ(namesIn(charts), (Names{"Renamed", "Clear", "Veiled", "Dark"}));

    charts.get("Item", "Clear").call("Delete");
    EXPECT_EQ(namesIn(charts), (Names{"Renamed", "Veiled", "Dark"}));
    EXPECT_GT(support::pngSizeOf(exported(charts.get("Item", "Dark").get("Chart"))).widthPx, 0U);
}

TEST_F(ExcelPictures, KnowsTheChartThatIsSelectedOrOnTop) {
    const Object book = open("sheets.xlsx");
    EXPECT_TRUE(book.get("ActiveChart").isEmpty());
    const Value object = sheet(book, "Alike").call("ChartObjects", 1);
    object.call("Activate");
    expectMembers(app, {{"ActiveSheet.Name", "Alike"}});
    book.get("ActiveChart").get("ChartArea").call("Copy");
    EXPECT_EQ(desk->clipboard().copied->source().chart, object.get("Name").toText());
    EXPECT_EQ(app.get("Selection").toObject().typeName(), "ChartArea");
    sheet(book, "Alike").get("Range", "B2:C3").call("Select");
    EXPECT_TRUE(book.get("ActiveChart").isEmpty());
    EXPECT_EQ(app.get("Selection").get("Address").toText(), "$B$2:$C$3");
    sheet(book, "Trend").call("Select");
    EXPECT_EQ(book.get("ActiveChart").get("Name").toText(), "Trend");
}

TEST_F(ExcelPictures, ExportsAChartSheetThatLibreOfficeLoses) {
    const Object kept = open("kept.xlsx");
    // The same pixels are not packed into the same bytes each time.
    const auto pixels = [](const std::string& png) { return support::pixelsOf(png).rgba; };
    const auto wanted = pixels(bytesOf(exported(kept.get("Charts").get("Item", "Gone"))));
    for (const char* name : {"lost.xlsx", "sizeless.xlsx"}) {
        const Object book = open(name);
        const auto before = openDocuments();
        const Value chart = book.get("Charts").get("Item", "Gone");
        EXPECT_TRUE(pixels(bytesOf(exported(chart))) == wanted) << name;
        chart.get("ChartArea").call("Copy");
        const auto copied = desk->clipboard().copied->picture(office::Sharpness::Crisp);
        EXPECT_TRUE(pixels(copied.png.get()) == wanted) << name;
        desk->clipboard().copied.reset();
        EXPECT_EQ(openDocuments(), before);
        EXPECT_TRUE(book.get("Saved").toBool()) << name;
    }
}

TEST_F(ExcelPictures, TurnsARangeIntoAnOpaquePictureAndLeavesTheWorkbookAlone) {
    const Object book = open("cells.xlsx");
    sheet(book, "Data").get("Range", "B3:C4").call("Select");
    const Value range = sheet(book, "Wide").get("Range", "A1:C4");
    const std::string path = pictureOf(range);
    EXPECT_NEAR(support::pngSizeOf(path).widthPoints(), range.get("Width").toDouble(), 0.5);
    EXPECT_NEAR(support::pngSizeOf(path).heightPoints(), range.get("Height").toDouble(), 0.5);
    EXPECT_FALSE(isTranslucent(path));
    static_cast<void>(pictureOf(sheet(book, "Data").get("Range", "A1:B2")));
    static_cast<void>(pictureOf(range));
    expectMembers(app, {{"ActiveSheet.Name", "Data"},
                        {"Selection.Address", "$B$3:$C$4"},
                        {"ActiveWorkbook.Saved", true}});
    EXPECT_EQ(sheet(book, "Wide").get("ChartObjects").get("Count").toLong(), 0);
    EXPECT_EQ(openDocuments().size(), 1U);
}

TEST_F(ExcelPictures, HasLettersOfTheAutomaticColourWhiteOnADarkGround) {
    const Object book = open("tables.xlsx");
    const support::PngPixels picture =
        support::pixelsOf(bytesOf(pictureOf(sheet(book, "Unsaid").get("Range", "A1"))));
    int lightest = 0;
    // The white ground of the picture may be seen beyond its right and lower edges.
    for (std::uint32_t y = 0; y < picture.height * 3 / 4; ++y)
        for (std::uint32_t x = 0; x < picture.width / 2; ++x)
            lightest =
                std::max<int>(lightest, picture.rgba[std::size_t{4} * (y * picture.width + x)]);
    EXPECT_GT(lightest, 200);
}

TEST_F(ExcelPictures, ShowsConditionalFormatsAsTheSheetDoes) {
    const Object book = open("tables.xlsx");
    const Object twins = sheet(book, "Twins");
    const auto bytes = [&](const char* cells) {
        return bytesOf(pictureOf(twins.get("Range", cells)));
    };
    for (const auto& [cells, twin, about] :
         {std::tuple{"A1:C4", "E1:G4", ""}, std::tuple{"A1:A14", "E1:E14", "beyond what is used"},
          std::tuple{"D4", "H4", "one that looks so by itself"},
          std::tuple{"K2:K3", "M2:M3", "a part of a scale"},
          std::tuple{"K5:K12", "M5:M12", "rows without a height of their own"}})
        EXPECT_LT(meanDifference(bytes(cells), bytes(twin)), 1) << about;
    EXPECT_GT(meanDifference(bytes("K2:K3"), bytes("M1:M2")), 1);
    expectMembers(book, {{"Saved", true}});
    EXPECT_EQ(openDocuments().size(), 1U);
    // In an .ods the style of a condition takes after its parent, on the sheet as well.
    const auto model = desk->active<excel::CalcDocument>()->model();
    for (int i = 1;; ++i) {
        const auto style = excel::cellStyle(model, toUno("ConditionalStyle_" + std::to_string(i)));
        if (!style.is()) break;
        as<css::style::XStyle>(style)->setParentStyle("Default");
    }
    EXPECT_GT(meanDifference(bytes("A1:C4"), bytes("E1:G4")), 3);
}

TEST_F(ExcelPictures, CostNoMoreCallsForConditionalFormatsWhereThereAreManySheets) {
    desk->isUndisturbed = true;
    const Object book = open("tables.xlsx");
    const auto twins = desk->active<excel::CalcDocument>()->sheetList().find("Twins");
    const auto callsFor = [&] {
        const auto look = [&] { EXPECT_FALSE(excel::mayBeMisdrawn(*twins, {0, 0, 2, 3})); };
        look();
        return callsOf(look);
    };
    const auto few = callsFor();
    for (int i = 0; i < 20; ++i) book.get("Sheets").call("Add");
    EXPECT_EQ(callsFor(), few);
}

TEST_F(ExcelPictures, ShowsAHiddenSheetOnlyForTheMomentOfTheCopy) {
    const Object book = open("sheets.xlsx");
    const Object hidden = sheet(book, "Hidden");
    const std::string path = pictureOf(hidden.get("Range", "A1:B2"));
    EXPECT_GT(bytesOf(path).size(), bytesOf(blank(150, 30)).size());
    expectMembers(hidden, {{"Visible", 0}, {"Parent.Saved", true}});
    EXPECT_EQ(sheet(book, "Buried").get("Visible").toLong(), 2);
}

TEST_F(ExcelPictures, AsksNothingThatCrashesTheSuiteOfAWorkbookThatIsClosedMeanwhile) {
    static_cast<void>(open("cells.xlsx"));
    const auto book = desk->active<excel::CalcDocument>();
    const auto data = book->sheetList().find("Data");
    const auto first = excel::model::CellBlock::cell(0, 0);
    excel::SelectedCells cells(*data, data->range(first), first);
    static_cast<void>(data->cellMap()->cellAt(100, 100));
    book->close();
    EXPECT_THROW(static_cast<void>(cells.copyAs("text/html")), css::lang::DisposedException);
    EXPECT_THROW(static_cast<void>(data->cellMap()->cellAt(200, 200)), uno::Exception);
    EXPECT_FALSE(connection()->isLost());
}

TEST_F(ExcelPictures, EndsWholeColumnsWithWhatIsUsed) {
    const Object book = open("cells.xlsx");
    const Value columns = book.get("Names").get("Item", "Columns").get("RefersToRange");
    const double height = sheet(book, "Data").get("Range", "A1:B9").get("Height").toDouble();
    EXPECT_NEAR(support::pngSizeOf(pictureOf(columns)).heightPoints(), height, 0.5);
    EXPECT_EQ(failureOf([&] { sheet(book, "Data").get("Columns", "X:Z").call("CopyPicture"); }),
              refused);
}

TEST_F(ExcelPictures, MakesFewerPixelsOfARangeOfThousandsOfRows) {
    const Object book = open("cells.xlsx");
    const Object data = sheet(book, "Data");
    data.get("Range", "A9:H3000").put("Value", "row");
    const Value range = data.get("Range", "A1:H3000");
    const std::string path = pictureOf(range);
    const support::PngSize size = support::pngSizeOf(path);
    EXPECT_LT(double{1} * size.widthPx * size.heightPx, 70e6);
    EXPECT_NEAR(size.heightPoints() / range.get("Height").toDouble(), 1, 0.01);
    EXPECT_NEAR(size.widthPoints() / range.get("Width").toDouble(), 1, 0.02);
}

TEST_F(ExcelPictures, LeavesNoPictureBehindWhereItCantWriteOne) {
    const Object book = open("charts.xlsx");
    const Value chart = sheet(book, "Data").call("ChartObjects", 1).get("Chart");
    const std::string folder = file("folder.png");
    std::filesystem::create_directory(folder);
    EXPECT_EQ(failureOf([&] { chart.call("Export", folder, "PNG"); }), refused);
    EXPECT_TRUE(std::filesystem::is_directory(folder));
    EXPECT_EQ(failureOf([&] { chart.call("Export", file("none/chart.png"), "PNG"); }), refused);
    EXPECT_FALSE(std::filesystem::exists(file("none")));
    EXPECT_EQ(failureOf([&] { chart.call("Export", file("chart.gif"), "GIF"); }), 5);
    EXPECT_GT(support::pngSizeOf(exported(chart, "Ünï & 100%#.png")).widthPx, 0U);
    shapeOf("Data", 0)->shape()->setSize({1, 1});
    EXPECT_EQ(failureOf([&] { chart.call("Export", file("chart.png"), "PNG"); }), refused);
    EXPECT_EQ(failureOf([&] { chart.get("ChartArea").call("Copy"); }), refused);
}

TEST_F(ExcelPictures, NamesAChartWithoutANameByItsKey) {
    Object book = open("charts.xlsx");
    as<css::container::XNamed>(shapeOf("Data", 0)->shape())->setName("");
    book = app.get("Workbooks").call("Open", savedAs("unnamed.ods", "calc8")).toObject();
    const Value charts = sheet(book, "Data").get("ChartObjects");
    const std::string key = charts.get("Item", 1).get("Name").toText();
    EXPECT_FALSE(key.empty());
    EXPECT_EQ(charts.get("Item", key).get("Name").toText(), key);
}

TEST_F(ExcelPictures, PastesNothingWhereNothingWasCopied) {
    const Object book = open("charts.xlsx");
    const Value holder = sheet(book, "Data").call("ChartObjects").call("Add", 0, 0, 100, 50);
    EXPECT_EQ(failureOf([&] { holder.get("Chart").call("Paste"); }), refused);
    sheet(book, "Data").call("ChartObjects", 1).call("CopyPicture", 1, -4147);
    holder.get("Chart").call("Paste");
    EXPECT_NEAR(support::pngSizeOf(exported(holder.get("Chart"))).widthPoints(), 360, 2)
        << "as large as what was copied";
    holder.call("Delete");
    EXPECT_NE(failureOf([&] { holder.get("Chart"); }), 0);
}

}  // namespace

}  // namespace live

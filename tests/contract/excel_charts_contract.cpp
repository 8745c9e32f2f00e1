#include <filesystem>

#include "contract/contract_test.h"
#include "office/vector_file.h"
#include "support/png_file.h"
#include "support/vector_file.h"

namespace contract {

namespace {

/// A suite gives a chart whole pixels.
constexpr double aboutPt = 1.5;

/// The picture is crisp, and as large in points as what it shows.
void expectCrisp(const std::string& file, double width, double height) {
    ASSERT_TRUE(std::filesystem::exists(file));
    const support::PngSize size = support::pngSizeOf(file);
    EXPECT_GT(size.dotsPerInch(), 200);
    EXPECT_NEAR(size.widthPoints(), width, aboutPt);
    EXPECT_NEAR(size.heightPoints(), height, aboutPt);
}

TEST_F(ExcelContract, ListsTheChartsOfAWorksheetAndFindsThemByNumberOrName) {
    // A worksheet with one chart is no chart sheet.
    const std::pair<const char*, std::vector<std::string>> all[] = {{"Sales", {"Chart 1", "Trend"}},
                                                                    {"Data, 2026", {"Only"}},
                                                                    {"Types", {}},
                                                                    {"Hidden", {"Chart 1"}}};
    for (const auto& [name, charts] : all)
        EXPECT_EQ(namesIn(sheet(name).get("ChartObjects")), charts);
    const Object sales = sheet("Sales");
    EXPECT_EQ(sales.call("ChartObjects").get("Count").toLong(), 2);
    EXPECT_EQ(sales.call("ChartObjects", "Trend").toObject().typeName(), "ChartObject");
    EXPECT_EQ(sales.call("ChartObjects", 2).get("Name").toText(), "Trend");
    EXPECT_EQ(sales.get("ChartObjects").get("Item", "chart 1").get("Name").toText(), "Chart 1");
    EXPECT_EQ(failureOf([&] { sales.get("ChartObjects").get("Item", "Nonesuch"); }),
              subscriptOutOfRange);
    EXPECT_EQ(failureOf([&] { sales.call("ChartObjects", 3); }), subscriptOutOfRange);
}

TEST_F(ExcelContract, DescribesAChart) {
    const Value object = sheet("Sales").call("ChartObjects", "Chart 1");
    expectMembers(object, {{"TopLeftCell.Address", "$L$2"}, {"Chart.Parent.Name", "Chart 1"}});
    EXPECT_EQ(object.get("Chart").toObject().typeName(), "Chart");
    const Value under =
        excel.get("Range", object.get("TopLeftCell"), object.get("BottomRightCell"));
    EXPECT_GT(under.get("Width").toDouble(), 360);
    EXPECT_GT(under.get("Rows").get("Count").toLong(), 1);
}

TEST_F(ExcelContract, ExportsChartsAndChartSheetsAsCrispPicturesOfTheirSize) {
    const std::string file = environment().temporaryFile("chart.png");
    const std::tuple<const char*, double, double> charts[] = {{"Sales", 360, 216},
                                                              {"Hidden", 240, 144}};
    for (const auto& [name, width, height] : charts) {
        support::writeBytes(file, {'o', 'l', 'd'});
        const Value object = sheet(name).call("ChartObjects", 1);
        object.get("Chart").call("Export", arg("Filename", file), arg("FilterName", "PNG"));
        awaitPicture(file);
        expectCrisp(file, width, height);
    }
    const Value chart = book.get("Charts").get("Item", "Overview");
    chart.call("Export", file, "PNG");
    awaitPicture(file);
    EXPECT_GT(support::pngSizeOf(file).dotsPerInch(), 200);
    EXPECT_GT(support::pngSizeOf(file).widthPoints(), 100);
    EXPECT_NE(failureOf([&] { chart.call("Export", "/nonexistent/folder/chart.png", "PNG"); }), 0);
}

TEST_F(ExcelContract, ExportsInVectorsOfTheTrueSize) {
    const Value object = sheet("Sales").call("ChartObjects", "Trend");
    const Object cells = range("Sales", "A1:C4");
    cells.call("CopyPicture", arg("Appearance", 1), arg("Format", -4147));
    const Value holder = sheet("Sales")
                             .get("ChartObjects")
                             .call("Add", 0, 0, cells.get("Width"), cells.get("Height"));
    holder.get("Chart").call("Paste");
    struct {
        const char* file;
        const char* filter;
        office::PictureKind kind;
    } const exports[] = {{"chart.svg", "SVG", office::PictureKind::Svg},
                         {"chart.emf", "emf", office::PictureKind::Emf},
                         {"other.EMF", nullptr, office::PictureKind::Emf},
                         {"other.bin", "SVG", office::PictureKind::Svg}};
    for (const auto& one : exports) {
        SCOPED_TRACE(one.file);
        const std::string file = environment().temporaryFile(one.file);
        for (const bool isChart : {true, false}) {
            const Value chart = (isChart ? object : holder).get("Chart");
            one.filter == nullptr ? chart.call("Export", file)
                                  : chart.call("Export", file, one.filter);
            const office::VectorFile vectors = office::vectorFileOf(support::textOf(file), file);
            EXPECT_EQ(vectors.kind, one.kind);
            EXPECT_NEAR(vectors.widthPt, isChart ? 240 : cells.get("Width").toDouble(), aboutPt);
            EXPECT_NEAR(vectors.heightPt, isChart ? 144 : cells.get("Height").toDouble(), aboutPt);
        }
    }
    EXPECT_EQ(failureOf([&] {
                  object.get("Chart").call("Export", environment().temporaryFile("a.pdf"), "PDF");
              }),
              5);
}

TEST_F(ExcelContract, TurnsARangeIntoAPictureThroughATemporaryChart) {
    for (const char* name : {"Total", "OnHidden"}) {
        const Object cells = book.get("Names").get("Item", name).get("RefersToRange").toObject();
        const Object where = cells.get("Worksheet").toObject();
        const std::int32_t before = where.get("ChartObjects").get("Count").toLong();
        cells.call("CopyPicture", arg("Appearance", 1), arg("Format", -4147));
        const double width = cells.get("Width").toDouble();
        const double height = cells.get("Height").toDouble();
        const Value object = where.get("ChartObjects").call("Add", 0, 0, width, height);
        failureOf([&] { object.call("Activate"); });
        object.get("Chart").call("Paste");
        const std::string file = environment().temporaryFile("Range_.png");
        object.get("Chart").call("Export", file, "PNG");
        object.call("Delete");
        awaitPicture(file);
        EXPECT_NE(failureOf([&] { object.get("Name"); }), 0);
        expectCrisp(file, width, height);
        EXPECT_EQ(where.get("ChartObjects").get("Count").toLong(), before);
    }
}

}  // namespace

}  // namespace contract

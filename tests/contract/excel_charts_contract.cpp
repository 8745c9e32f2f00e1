#include <filesystem>

#include "contract/contract_test.h"
#include "support/png_file.h"

namespace contract {

namespace {

constexpr double point = 1;

/// The picture is crisp, and as large in points as what it shows.
void expectCrisp(const std::string& file, double width, double height) {
    ASSERT_TRUE(std::filesystem::exists(file));
    const support::PngSize size = support::pngSizeOf(file);
    EXPECT_GT(size.dotsPerInch(), 200);
    EXPECT_NEAR(size.widthPoints(), width, point);
    EXPECT_NEAR(size.heightPoints(), height, point);
}

TEST_F(ExcelContract, ListsTheChartsOfAWorksheet) {
    const auto chartsOf = [&](const char* name) {
        return namesIn(sheet(name).get("ChartObjects"));
    };
    EXPECT_EQ(chartsOf("Sales"), (std::vector<std::string>{"Chart 1", "Trend"}));
    EXPECT_EQ(chartsOf("Data, 2026"), std::vector<std::string>{"Only"})
        << "a worksheet with one chart is no chart sheet";
    EXPECT_EQ(chartsOf("Types"), std::vector<std::string>{});
    EXPECT_EQ(chartsOf("Hidden"), std::vector<std::string>{"Chart 1"});
    EXPECT_EQ(sheet("Sales").call("ChartObjects").get("Count").toLong(), 2);
}

TEST_F(ExcelContract, FindsAChartByNumberOrName) {
    const Object sales = sheet("Sales");
    EXPECT_EQ(sales.call("ChartObjects", "Trend").toObject().typeName(), "ChartObject");
    EXPECT_EQ(sales.call("ChartObjects", 2).get("Name").toText(), "Trend");
    EXPECT_EQ(sales.get("ChartObjects").get("Item", "chart 1").get("Index").toLong(), 1);
    EXPECT_EQ(failureOf([&] { sales.get("ChartObjects").get("Item", "Nonesuch"); }),
              subscriptOutOfRange);
    EXPECT_EQ(failureOf([&] { sales.call("ChartObjects", 3); }), subscriptOutOfRange);
}

TEST_F(ExcelContract, DescribesAChart) {
    const Value object = sheet("Sales").call("ChartObjects", "Chart 1");
    EXPECT_NEAR(object.get("Width").toDouble(), 360, 2 * point);
    EXPECT_NEAR(object.get("Height").toDouble(), 216, 2 * point);
    EXPECT_EQ(object.get("TopLeftCell").get("Address").toText(), "$L$2");
    const Value under =
        excel.get("Range", object.get("TopLeftCell"), object.get("BottomRightCell"));
    EXPECT_GT(under.get("Columns").get("Count").toLong(), 1);
    EXPECT_GT(under.get("Rows").get("Count").toLong(), 1);
    EXPECT_EQ(object.get("Parent").get("Name").toText(), "Sales");
    EXPECT_EQ(object.get("Chart").toObject().typeName(), "Chart");
    EXPECT_EQ(object.get("Chart").get("Parent").get("Name").toText(), "Chart 1");
}

TEST_F(ExcelContract, ExportsAChartAsACrispPictureOfItsSize) {
    for (const char* name : {"Sales", "Hidden"}) {
        const Value object = sheet(name).call("ChartObjects", 1);
        const std::string file = environment().temporaryFile("chart.png");
        object.get("Chart").call("Export", arg("Filename", file), arg("FilterName", "PNG"));
        expectCrisp(file, object.get("Width").toDouble(), object.get("Height").toDouble());
    }
}

TEST_F(ExcelContract, ExportsAChartSheet) {
    const std::string file = environment().temporaryFile("EmbeddedChart_.png");
    const Value chart = book.get("Charts").get("Item", "Overview");
    chart.call("Export", arg("Filename", file), arg("FilterName", "PNG"));
    const support::PngSize size = support::pngSizeOf(file);
    EXPECT_GT(size.dotsPerInch(), 200);
    EXPECT_GT(size.widthPoints(), 100);
}

TEST_F(ExcelContract, OverwritesAnEarlierPictureAndFailsWhereItCantWrite) {
    const Value chart = sheet("Sales").call("ChartObjects", 1).get("Chart");
    const std::string file = environment().temporaryFile("again.png");
    support::writeBytes(file, {'o', 'l', 'd'});
    chart.call("Export", file, "PNG");
    EXPECT_GT(support::pngSizeOf(file).widthPx, 0U);
    EXPECT_NE(failureOf([&] { chart.call("Export", "/nonexistent/folder/chart.png", "PNG"); }), 0);
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
        expectCrisp(file, width, height);
        EXPECT_EQ(where.get("ChartObjects").get("Count").toLong(), before);
    }
}

}  // namespace

}  // namespace contract

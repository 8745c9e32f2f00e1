#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "office/failure_patterns.h"
#include "office_double/suite.h"
#include "support/counting_suite.h"
#include "support/failing_suite.h"
#include "support/png_file.h"

namespace support {

namespace {

using office::arg;
using office::Failure;
using office::SuiteLost;
using office::Value;

class WrappingTest : public testing::Test {
protected:
    WrappingTest() {
        suite.excel().addWorkbook("Book1.xlsx").sheet("Sales").block("A1", {{1, 2}, {3, 4}});
    }

    office_double::DoubleSuite suite;
};

TEST_F(WrappingTest, CountsCallsByMemberAndKindWhateverTheObjectCameFrom) {
    CountingSuite counting(suite);
    const auto sheet =
        counting.attach("Excel.Application").get("ActiveWorkbook").get("Sheets").get("Item", 1);
    EXPECT_EQ(sheet.get("Range", "A1:B2").get("Value").toTable().at(2, 2).toDouble(), 4);
    sheet.get("Range", "A1").put("Value", "x");
    EXPECT_EQ(counting.log().count("Range.Value"), 2U);
    EXPECT_EQ(counting.log().count("range.value", CallKind::Put), 1U);
    EXPECT_EQ(counting.log().count("Value", CallKind::Get), 1U);
    EXPECT_EQ(counting.log().count(), 7U);
    EXPECT_EQ(counting.log().texts("Range.Value").back(), "Range.Value = \"x\"");
    EXPECT_EQ(counting.log().texts("Worksheet.Range").front(), "Worksheet.Range(\"A1:B2\")");
}

TEST_F(WrappingTest, HandsWrappedObjectsBackToTheirApplication) {
    CountingSuite counting(suite);
    const auto excel = counting.attach("Excel.Application");
    const Value sheet = excel.get("ActiveSheet");
    const Value block = sheet.get("Range", sheet.get("Cells", 1, 1), sheet.get("Cells", 2, 2));
    EXPECT_EQ(block.get("Address").toText(), "$A$1:$B$2");
    const Value added = excel.get("Worksheets").call("Add", arg("After", sheet));
    EXPECT_EQ(added.get("Index").toLong(), 2);
}

TEST_F(WrappingTest, FailsTheCallThatIsPlannedToAndNoOther) {
    FailingSuite failing(suite);
    failing.plan().fail("Range.Value", 2, office::FailureNumber::PermissionDenied);
    const Value cell = failing.attach("Excel.Application").get("ActiveSheet").get("Range", "A1");
    EXPECT_EQ(cell.get("Value").toDouble(), 1);
    try {
        cell.put("Value", 5);
        FAIL() << "the second call went through";
    } catch (const Failure& failure) {
        EXPECT_TRUE(failure.is(office::FailureNumber::PermissionDenied));
        EXPECT_EQ(failure.source(), "Range.Value");
    }
    EXPECT_EQ(cell.get("Value").toDouble(), 1) << "the failed call was not made";
}

TEST_F(WrappingTest, LosesTheSuiteAtACallAndForGood) {
    FailingSuite failing(suite);
    const auto excel = failing.attach("Excel.Application");
    failing.plan().loseSuiteAt(2);
    EXPECT_NO_THROW(excel.get("Version"));
    EXPECT_THROW(excel.get("Version"), SuiteLost);
    EXPECT_THROW(excel.get("Name"), SuiteLost);
}

TEST(DoubleSuite, RecordsAndFailsItsCallsWithoutAWrapper) {
    office_double::DoubleSuite suite;
    suite.excel().addWorkbook("Book1.xlsx").sheet("Sales").chart("Chart 1");
    suite.failures().failAlways("Chart.Export");
    const auto excel = suite.attach("Excel.Application");
    const Value chart = excel.get("ActiveSheet").call("ChartObjects", 1).get("Chart");
    const std::string path = testing::TempDir() + "never-written.png";
    EXPECT_THROW(chart.call("Export", path), Failure);
    EXPECT_FALSE(std::filesystem::exists(path));
    EXPECT_EQ(suite.log().count("Chart.Export"), 1U);
    suite.kill();
    EXPECT_THROW(excel.get("Version"), SuiteLost);
    EXPECT_TRUE(suite.attach("Excel.Application").isNothing());
}

TEST(DoubleSuite, GoesWithoutTheHandlesThatOutliveIt) {
    office::Object cell;
    {
        office_double::DoubleSuite suite;
        suite.excel().addWorkbook("Book1.xlsx").sheet("Sales").value("A1", 1);
        cell = suite.attach("Excel.Application").get("Range", "A1").toObject();
    }
    EXPECT_THROW(cell.get("Value"), Failure);
}

TEST(PngFile, KeepsSizeAndDensity) {
    const std::string path = testing::TempDir() + "size.png";
    writeBytes(path, pngPicture({960, 600, 11339}));
    const PngSize size = pngSizeOf(path);
    EXPECT_EQ(size.widthPx, 960U);
    EXPECT_EQ(size.heightPx, 600U);
    EXPECT_NEAR(size.dotsPerInch(), 288, 0.1);
    EXPECT_NEAR(size.widthPoints(), 240, 0.1);
    std::filesystem::remove(path);
    EXPECT_THROW(pngSizeOf(path), std::runtime_error);
}

}  // namespace

}  // namespace support

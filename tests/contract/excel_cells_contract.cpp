#include "contract/contract_test.h"

namespace contract {

namespace {

constexpr std::int32_t up = -4162;

TEST_F(ExcelContract, ReadsEachTypeOfCell) {
    const auto value = [&](const char* cell) { return range("Types", cell).get("Value"); };
    EXPECT_TRUE(value("A1").isText());
    EXPECT_EQ(value("A1").toText(), "plain");
    EXPECT_TRUE(value("A2").isText()) << "a text stays a text, though it looks like a number";
    EXPECT_EQ(value("A2").toText(), "3");
    EXPECT_TRUE(value("A3").isNumber());
    EXPECT_EQ(value("A3").toDouble(), 2.5);
    EXPECT_TRUE(value("A4").isBool());
    EXPECT_TRUE(value("A4").toBool());
    EXPECT_TRUE(value("A5").isBlank());
    EXPECT_EQ(value("A6").toDouble(), 504);
}

TEST_F(ExcelContract, ReadsTheFormatOfACell) {
    EXPECT_EQ(range("Types", "A2").get("NumberFormat").toText(), "@");
    EXPECT_EQ(range("Types", "A3").get("NumberFormat").toText(), "General");
    EXPECT_EQ(range("Types", "A7").get("NumberFormat").toText(), "0.00");
}

TEST_F(ExcelContract, ReadsABlockOfCellsAtOnce) {
    const Value value = range("Sales", "A1:J20").get("Value");
    ASSERT_TRUE(value.isTable());
    const Table block = value.toTable();
    ASSERT_EQ(block.rows(), 20U);
    ASSERT_EQ(block.columns(), 10U);
    EXPECT_EQ(block.at(1, 1).toText(), "Item");
    EXPECT_EQ(block.at(20, 1).toText(), "Item 20");
    EXPECT_EQ(block.at(20, 10).toDouble(), 2010);
    EXPECT_EQ(block.at(2, 2).toDouble(), 202);
}

TEST_F(ExcelContract, ReadsBackABlockThatItHasWritten) {
    Table block(2, 4);
    block.at(1, 1) = "Größe – 5 €";
    block.at(1, 2) = 2.25;
    block.at(1, 3) = true;
    block.at(2, 1) = "two\nlines";
    block.at(2, 2) = -7;
    block.at(2, 3) = false;
    block.at(2, 4) = "{Chart Sheet}";
    const Object types = sheet("Types");
    types.get("Range", types.get("Cells", 3, 3), types.get("Cells", 4, 6)).put("Value", block);
    const Table read = types.get("Range", "C3:F4").get("Value").toTable();
    EXPECT_EQ(read.at(1, 1).toText(), "Größe – 5 €");
    EXPECT_EQ(read.at(1, 2).toDouble(), 2.25);
    EXPECT_TRUE(read.at(1, 3).isBool() && read.at(1, 3).toBool());
    EXPECT_TRUE(read.at(1, 4).isBlank());
    EXPECT_EQ(read.at(2, 1).toText(), "two\nlines");
    EXPECT_EQ(read.at(2, 2).toDouble(), -7);
    EXPECT_TRUE(read.at(2, 3).isBool() && !read.at(2, 3).toBool());
    EXPECT_EQ(read.at(2, 4).toText(), "{Chart Sheet}");
}

/// How the store of a workbook is made and filled.
TEST_F(ExcelContract, KeepsTextsInTextColumnsAndNumbersInNumberColumns) {
    const Object store = book.get("Worksheets").call("Add").toObject();
    store.put("Name", "kukukukuZichron");
    book.get("Names").call("Add", arg("Name", "MurvaneReservedName01"),
                           arg("RefersToR1C1", "=kukukukuZichron!C1:C8"));
    const Value columns = store.get("Range", "MurvaneReservedName01");
    columns.put("NumberFormat", "@");
    store.get("Columns", "D:E").put("NumberFormat", "0");
    store.put("Visible", 2);
    Table block(2, 20);
    block.at(1, 1) = "Chart 1";
    block.at(1, 3) = "3";
    block.at(1, 4) = "12";
    block.at(1, 5) = true;
    block.at(1, 8) = "=1+1";
    block.at(1, 20) = "a title";
    block.at(2, 5) = false;
    store.get("Range", store.get("Cells", 1, 1), store.get("Cells", 2, 20)).put("Value", block);
    const Table read = store.get("Range", "A1:T2").get("Value").toTable();
    EXPECT_TRUE(read.at(1, 3).isText());
    EXPECT_EQ(read.at(1, 3).toText(), "3");
    EXPECT_TRUE(read.at(1, 4).isNumber());
    EXPECT_EQ(read.at(1, 4).toDouble(), 12);
    EXPECT_TRUE(read.at(1, 5).toBool());
    EXPECT_FALSE(read.at(2, 5).toBool());
    EXPECT_EQ(read.at(1, 8).toText(), "=1+1");
    EXPECT_EQ(read.at(1, 20).toText(), "a title");
    store.get("Range", "MurvaneReservedName01").call("ClearContents");
    EXPECT_TRUE(store.get("Cells", 1, 1).get("Value").isBlank());
    EXPECT_EQ(store.get("Cells", 1, 20).get("Value").toText(), "a title");
}

TEST_F(ExcelContract, TakesAndGivesTextInATextColumn) {
    const Object types = sheet("Types");
    types.get("Columns", "J").put("NumberFormat", "@");
    for (const char* text : {"007", "1.50", "TRUE", "=1+1", "1e3", " "}) {
        types.get("Range", "J3").put("Value", text);
        EXPECT_TRUE(range("Types", "J3").get("Value").isText()) << text;
        EXPECT_EQ(range("Types", "J3").get("Value").toText(), text);
    }
}

TEST_F(ExcelContract, WritesOneCellAndClearsItByAnEmptyText) {
    const Value cell = sheet("Types").get("Cells", 9, 7);
    cell.put("Value", 10);
    EXPECT_EQ(range("Types", "G9").get("Value").toDouble(), 10);
    cell.put("Value", "");
    EXPECT_TRUE(range("Types", "G9").get("Value").isBlank());
}

TEST_F(ExcelContract, FindsTheLastFilledRowFromBelow) {
    const Object sales = sheet("Sales");
    const Value bottom = sales.get("Cells", sales.get("Rows").get("Count"), "A");
    EXPECT_EQ(bottom.call("End", up).get("Row").toLong(), 20);
    const Value empty = sales.get("Cells", sales.get("Rows").get("Count"), "Z");
    EXPECT_EQ(empty.call("End", up).get("Row").toLong(), 1);
}

TEST_F(ExcelContract, DescribesWhereARangeLies) {
    const Object block = range("Sales", "B3:D5");
    EXPECT_EQ(block.get("Address").toText(), "$B$3:$D$5");
    EXPECT_EQ(block.get("Row").toLong(), 3);
    EXPECT_EQ(block.get("Count").toLong(), 9);
    EXPECT_EQ(block.get("Rows").get("Count").toLong(), 3);
    EXPECT_EQ(block.get("Columns").get("Count").toLong(), 3);
    EXPECT_EQ(block.get("Cells", 2, 2).get("Address").toText(), "$C$4");
    EXPECT_EQ(sheet("Sales").get("UsedRange").get("Address").toText(), "$A$1:$J$20");
    EXPECT_EQ(excel.get("Cells", 2, 3).get("Address").toText(), "$C$2");
    EXPECT_EQ(excel.get("Range", excel.get("Cells", 2, 3), excel.get("Cells", 4, 1))
                  .get("Address")
                  .toText(),
              "$A$2:$C$4");
}

TEST_F(ExcelContract, MeasuresARangeInPoints) {
    const Object one = range("Sales", "B2");
    const Object block = range("Sales", "B2:D6");
    EXPECT_GT(one.get("Width").toDouble(), 20);
    EXPECT_NEAR(block.get("Width").toDouble(), 3 * one.get("Width").toDouble(), 1);
    EXPECT_NEAR(block.get("Height").toDouble(), 5 * one.get("Height").toDouble(), 1);
    EXPECT_NEAR(block.get("Left").toDouble(), range("Sales", "A1").get("Width").toDouble(), 1);
    EXPECT_NEAR(block.get("Top").toDouble(), range("Sales", "A1").get("Height").toDouble(), 1);
}

TEST_F(ExcelContract, IntersectsRangesOfOneSheetAlone) {
    const auto meeting = [&](const char* first, const char* second) {
        return excel.call("Intersect", Value(range("Sales", first)), Value(range("Sales", second)));
    };
    EXPECT_EQ(meeting("A1:C3", "B2:F9").get("Address").toText(), "$B$2:$C$3");
    EXPECT_TRUE(meeting("A1:B2", "D4:E5").isEmpty());
    EXPECT_NE(failureOf([&] {
                  excel.call("Intersect", Value(range("Sales", "A1")), Value(range("Types", "A1")));
              }),
              0);
}

TEST_F(ExcelContract, SelectsARange) {
    range("Sales", "B3:D5").call("Select");
    EXPECT_EQ(excel.get("Selection").toObject().typeName(), "Range");
    EXPECT_EQ(excel.get("Selection").get("Address").toText(), "$B$3:$D$5");
}

TEST_F(ExcelContract, ShowsHiddenRowsAgain) {
    const Value rows = range("Sales", "A3:A5").get("EntireRow");
    rows.put("Hidden", true);
    EXPECT_TRUE(range("Sales", "A4").get("EntireRow").get("Hidden").toBool());
    excel.get("Rows", "1:500000").get("EntireRow").put("Hidden", false);
    EXPECT_FALSE(range("Sales", "A4").get("EntireRow").get("Hidden").toBool());
}

}  // namespace

}  // namespace contract

#include "contract/contract_test.h"

namespace contract {

namespace {

using support::expectCell;
using support::tableOf;

TEST_F(ExcelContract, ReadsEachTypeOfCellAndItsFormat) {
    // A text stays a text, though it looks like a number.
    const std::pair<const char*, Value> cells[] = {{"A1", "plain"}, {"A2", "3"}, {"A3", 2.5},
                                                   {"A4", true},    {"A5", {}},  {"A6", 504.0}};
    for (const auto& [cell, value] : cells) expectCell(range("Types", cell).get("Value"), value);
    const std::pair<const char*, const char*> formats[] = {
        {"A2", "@"}, {"A3", "General"}, {"A7", "0.00"}};
    for (const auto& [cell, format] : formats)
        EXPECT_EQ(range("Types", cell).get("NumberFormat").toText(), format);
}

TEST_F(ExcelContract, ReadsABlockOfCellsAtOnce) {
    const Table block = range("Sales", "A1:J20").get("Value").toTable();
    ASSERT_TRUE(block.rows() == 20 && block.columns() == 10);
    expectCell(block.at(20, 1), "Item 20");
    expectCell(block.at(20, 10), 2010.0);
    expectCell(block.at(2, 2), 202.0);
}

TEST_F(ExcelContract, ReadsBackABlockThatItHasWritten) {
    const Table block =
        tableOf({{"Größe – 5 €", 2.25, true, {}}, {"two\nlines", -7.0, false, "{Chart Sheet}"}});
    const Object types = sheet("Types");
    types.get("Range", types.get("Range", "C3"), types.get("Range", "F4")).put("Value", block);
    const Table read = types.get("Range", "C3:F4").get("Value").toTable();
    for (const std::size_t row : {1U, 2U}) {
        for (std::size_t i = 1; i <= 4; ++i) expectCell(read.at(row, i), block.at(row, i));
    }
    const Value cell = types.get("Range", "G9");
    cell.put("Value", 10);
    EXPECT_EQ(range("Types", "G9").get("Value").toDouble(), 10);
    cell.put("Value", "");
    EXPECT_TRUE(range("Types", "G9").get("Value").isBlank());
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
    const auto block = [&] { return store.get("Range", "C1:I2"); };
    block().put("Value", tableOf({{"3", "12", true, "007", "TRUE", "=1+1", "a title"},
                                  {"1.50", {}, false, "1e3", " ", {}, {}}}));
    const Table expected = tableOf({{"3", 12.0, true, "007", "TRUE", "=1+1", "a title"},
                                    {"1.50", {}, false, "1e3", " ", {}, {}}});
    const Table read = block().get("Value").toTable();
    for (const std::size_t row : {1U, 2U}) {
        for (std::size_t i = 1; i <= 7; ++i) {
            // Truth values may come out of number columns as they can.
            if (i == 3) {
                EXPECT_EQ(read.at(row, i).toBool(), row == 1);
            } else {
                expectCell(read.at(row, i), expected.at(row, i));
            }
        }
    }
    store.get("Range", "MurvaneReservedName01").call("ClearContents");
    EXPECT_TRUE(store.get("Range", "C1").get("Value").isBlank());
    EXPECT_EQ(store.get("Range", "I1").get("Value").toText(), "a title");
    store.get("Cells").call("ClearContents");
    EXPECT_TRUE(store.get("Range", "I1").get("Value").isBlank());
}

TEST_F(ExcelContract, DescribesAndMeasuresARange) {
    const Object block = range("Sales", "B3:D5");
    expectMembers(block, {{"Address", "$B$3:$D$5"}, {"Row", 3}, {"Rows.Count", 3}});
    EXPECT_EQ(sheet("Sales").get("UsedRange").get("Address").toText(), "$A$1:$J$20");
    const Value corners =
        excel.get("Range", Value(range("Sales", "C2")), Value(range("Sales", "A4")));
    EXPECT_EQ(corners.get("Address").toText(), "$A$2:$C$4");

    const Object one = range("Sales", "B2");
    EXPECT_GT(one.get("Width").toDouble(), 20);
    EXPECT_NEAR(block.get("Width").toDouble(), 3 * one.get("Width").toDouble(), 1);
    EXPECT_NEAR(block.get("Height").toDouble(), 3 * one.get("Height").toDouble(), 1);
}

TEST_F(ExcelContract, IntersectsRangesOfOneSheetAloneAndSelectsThem) {
    const auto meeting = [&](const char* first, const char* sheetName, const char* second) {
        return excel.call("Intersect", Value(range("Sales", first)),
                          Value(range(sheetName, second)));
    };
    EXPECT_EQ(meeting("A1:C3", "Sales", "B2:F9").get("Address").toText(), "$B$2:$C$3");
    EXPECT_TRUE(meeting("A1:B2", "Sales", "D4:E5").isEmpty());
    EXPECT_NE(failureOf([&] { meeting("A1", "Types", "A1"); }), 0);
    range("Sales", "B3:D5").call("Select");
    EXPECT_EQ(excel.get("Selection").toObject().typeName(), "Range");
    EXPECT_EQ(excel.get("Selection").get("Address").toText(), "$B$3:$D$5");
}

}  // namespace

}  // namespace contract

#include "contract/contract_test.h"

namespace contract {

namespace {

using Names = std::vector<std::string>;

TEST_F(ExcelContract, KnowsItselfAndTheWorkbookItHasOpened) {
    EXPECT_EQ(suite().attach("excel.application").typeName(), "Application");
    EXPECT_TRUE(suite().attach("Nonesuch.Application").isNothing());
    const std::string path = environment().document("contract-book.xlsx");
    EXPECT_EQ(book.typeName(), "Workbook");
    expectMembers(excel, {{"ActiveWorkbook.Name", "contract-book.xlsx"},
                          {"ActiveWorkbook.FullName", path},
                          {"ActiveWorkbook.ReadOnly", false},
                          {"ActiveSheet.Name", "Sales"}});
    EXPECT_EQ(book.get("ActiveSheet").toObject().typeName(), "Worksheet");
    EXPECT_EQ(excel.get("Workbooks").get("Item", "CONTRACT-BOOK.XLSX").get("FullName").toText(),
              path);
    EXPECT_EQ(book.get("sheets").get("ITEM", 1).get("NAME").toText(), "Sales");
    EXPECT_NE(failureOf([&] { excel.get("Workbooks").call("Open", "/nonexistent/book.xlsx"); }), 0);
    EXPECT_EQ(excel.get("Workbooks").get("Count").toLong(), 1);
}

TEST_F(ExcelContract, ReadsBackTheSettingsThatAnExportChanges) {
    for (const char* flag : {"ScreenUpdating", "EnableEvents", "DisplayAlerts"}) {
        for (const bool on : {false, true}) {
            excel.put(flag, on);
            EXPECT_EQ(excel.get(flag).toBool(), on) << flag;
        }
    }
    for (const std::int32_t mode : {-4135, -4105}) {
        excel.put("Calculation", mode);
        EXPECT_EQ(excel.get("Calculation").toLong(), mode);
    }
    for (const std::int32_t state : {-4137, -4143}) {
        EXPECT_EQ(failureOf([&] { excel.put("WindowState", state); }), 0) << state;
    }
}

TEST_F(ExcelContract, KeepsBothKindsOfSheetsInTabOrderAndTellsThemApart) {
    EXPECT_EQ(namesIn(book.get("Sheets")), (Names{"Sales", "Types", "Overview", "Data, 2026",
                                                  "Hidden", "Buried", "Locked", "Backstage"}));
    EXPECT_EQ(namesIn(book.get("Worksheets")),
              (Names{"Sales", "Types", "Data, 2026", "Hidden", "Buried", "Locked"}));
    EXPECT_EQ(namesIn(book.get("Charts")), (Names{"Overview", "Backstage"}));
    EXPECT_EQ(book.get("Sheets").get("Count").toLong(), 8);
    expectMembers(sheet("Data, 2026"), {{"Index", 4}, {"Type", -4167}});
    EXPECT_EQ(sheet("sALES").typeName(), "Worksheet");
    EXPECT_EQ(sheet(3).typeName(), "Chart");
    EXPECT_NE(sheet("Overview").get("Type").toLong(), -4167);
}

TEST_F(ExcelContract, ReadsAndSetsTheThreeStatesOfASheet) {
    const std::pair<const char*, std::int32_t> states[] = {
        {"Sales", -1}, {"Overview", -1}, {"Hidden", 0}, {"Buried", 2}, {"Backstage", 0}};
    for (const auto& [name, state] : states) {
        EXPECT_EQ(sheet(name).get("Visible").toLong(), state) << name;
    }
    for (const std::int32_t state : {0, -1, 2, 0, 2, -1}) {
        sheet("Types").put("Visible", state);
        EXPECT_EQ(sheet("Types").get("Visible").toLong(), state);
    }
}

TEST_F(ExcelContract, FailsWithSubscriptOutOfRangeWhereNothingIsFound) {
    const std::vector<std::pair<const char*, Value>> misses = {
        {"Sheets", "Nonesuch"},     {"Sheets", 9},       {"Sheets", 0}, {"Worksheets", "Overview"},
        {"Worksheets", "Nonesuch"}, {"Charts", "Sales"}, {"Charts", 3}, {"Names", "Nonesuch"}};
    for (const auto& [collection, index] : misses) {
        EXPECT_EQ(failureOf([&, &c = collection, &i = index] { book.get(c).get("Item", i); }),
                  subscriptOutOfRange)
            << collection;
    }
}

TEST_F(ExcelContract, AddsAWorksheetAheadOfTheActiveOneOrBehindAGivenOne) {
    const Value first = book.get("Worksheets").call("Add");
    EXPECT_EQ(first.get("Index").toLong(), 1);
    const Value last = book.get("Worksheets").call("Add", arg("After", Value(sheet("Backstage"))));
    EXPECT_EQ(last.get("Index").toLong(), 10);
    EXPECT_EQ(last.toObject().typeName(), "Worksheet");
    last.put("Name", "kukukukuZichron");
    EXPECT_EQ(sheet("kukukukuzichron").get("Index").toLong(), 10);
}

TEST_F(ExcelContract, RefusesNamesThatASheetCantHaveActivatesAndDeletesIt) {
    const Object types = sheet("Types");
    for (const char* name :
         {"", "sales", "a/b", "a[b", "overview", "a name of more than thirty-one letters"}) {
        EXPECT_EQ(failureOf([&] { types.put("Name", name); }), refused) << name;
        EXPECT_EQ(types.get("Name").toText(), "Types");
    }
    types.put("Name", "Kinds & more");
    types.call("Select");
    EXPECT_EQ(excel.get("ActiveSheet").get("Name").toText(), "Kinds & more");
    sheet("Overview").call("Activate");
    EXPECT_EQ(excel.get("ActiveSheet").toObject().typeName(), "Chart");
    excel.put("DisplayAlerts", false);
    types.call("Delete");
    EXPECT_EQ(book.get("Sheets").get("Count").toLong(), 7);
    EXPECT_NE(failureOf([&] { types.get("Name"); }), 0);
}

TEST_F(ExcelContract, TakesNoNewSheetWhileTheStructureIsProtected) {
    EXPECT_FALSE(book.get("ProtectStructure").toBool());
    const Object locked = open("contract-locked.xlsx");
    EXPECT_TRUE(locked.get("ProtectStructure").toBool());
    EXPECT_NE(failureOf([&] { locked.get("Worksheets").call("Add"); }), 0);
    EXPECT_EQ(locked.get("Sheets").get("Count").toLong(), 1);
}

TEST_F(ExcelContract, LeavesProtectedContentsAloneAndKnowsUnsavedChanges) {
    book.put("Saved", true);
    EXPECT_NE(failureOf([&] { range("Locked", "A1").put("Value", "changed"); }), 0);
    EXPECT_EQ(range("Locked", "A1").get("Value").toText(), "fixed");
    EXPECT_TRUE(book.get("Saved").toBool());
    range("Types", "C1").put("Value", "x");
    EXPECT_FALSE(book.get("Saved").toBool());
}

TEST_F(ExcelContract, ChangesAWorkbookWhoseFileItLeavesAlone) {
    const std::string file = environment().document("contract-readonly.xlsx");
    const Value opened =
        excel.get("Workbooks").call("Open", arg("FileName", file), arg("ReadOnly", true));
    expectMembers(opened,
                  {{"ReadOnly", true}, {"Name", "contract-readonly.xlsx"}, {"FullName", file}});
    EXPECT_EQ(opened.get("Sheets").get("Item", 2).toObject().typeName(), "Chart");
    const Value cell = opened.get("Sheets").get("Item", 1).get("Range", "A1");
    cell.put("Value", "changed");
    EXPECT_EQ(cell.get("Value").toText(), "changed");
    EXPECT_EQ(opened.get("Worksheets").call("Add").get("Index").toLong(), 1);
    opened.call("Close", arg("SaveChanges", false));
}

TEST_F(ExcelContract, FailsOnEveryObjectOfAClosedWorkbook) {
    const Object sales = sheet("Sales");
    const Object cell = range("Sales", "B2");
    const Object chart = sales.get("ChartObjects").get("Item", 1).toObject();
    book.call("Close", arg("SaveChanges", false));
    EXPECT_EQ(excel.get("Workbooks").get("Count").toLong(), 0);
    EXPECT_TRUE(excel.get("ActiveWorkbook").isEmpty());
    for (const auto& [object, member] :
         {std::pair(book, "Name"), {sales, "Name"}, {cell, "Value"}, {chart, "Name"}})
        EXPECT_NE(failureOf([&, &o = object, &m = member] { support::at(o, m); }), 0) << member;
}

}  // namespace

}  // namespace contract

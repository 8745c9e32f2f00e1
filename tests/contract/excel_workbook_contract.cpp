#include <filesystem>

#include "contract/contract_test.h"

namespace contract {

namespace {

using Names = std::vector<std::string>;

TEST_F(ExcelContract, AttachesToARunningApplicationByItsClassNameAlone) {
    EXPECT_EQ(suite().attach("excel.application").typeName(), "Application");
    EXPECT_TRUE(suite().attach("Nonesuch.Application").isNothing());
    EXPECT_EQ(excel.get("Name").toText(), "Microsoft Excel");
    EXPECT_TRUE(excel.get("Version").toText().starts_with("16."));
}

TEST_F(ExcelContract, KnowsTheWorkbookItHasOpened) {
    const std::filesystem::path path = environment().document("contract-book.xlsx");
    EXPECT_EQ(book.typeName(), "Workbook");
    EXPECT_EQ(book.get("Name").toText(), "contract-book.xlsx");
    EXPECT_EQ(book.get("FullName").toText(), path.string());
    EXPECT_FALSE(book.get("ReadOnly").toBool());
    EXPECT_EQ(excel.get("ActiveWorkbook").get("Name").toText(), "contract-book.xlsx");
    EXPECT_EQ(excel.get("ActiveSheet").get("Name").toText(), "Sales");
    EXPECT_EQ(book.get("ActiveSheet").toObject().typeName(), "Worksheet");
    EXPECT_EQ(excel.get("Workbooks").get("Item", "CONTRACT-BOOK.XLSX").get("FullName").toText(),
              path.string());
}

TEST_F(ExcelContract, HasNoActiveWorkbookWhenNoneIsOpen) {
    book.call("Close", arg("SaveChanges", false));
    EXPECT_EQ(excel.get("Workbooks").get("Count").toLong(), 0);
    EXPECT_TRUE(excel.get("ActiveWorkbook").isEmpty());
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

TEST_F(ExcelContract, KeepsBothKindsOfSheetsInTabOrder) {
    EXPECT_EQ(namesIn(book.get("Sheets")), (Names{"Sales", "Types", "Overview", "Data, 2026",
                                                  "Hidden", "Buried", "Locked", "Backstage"}));
    EXPECT_EQ(namesIn(book.get("Worksheets")),
              (Names{"Sales", "Types", "Data, 2026", "Hidden", "Buried", "Locked"}));
    EXPECT_EQ(namesIn(book.get("Charts")), (Names{"Overview", "Backstage"}));
    EXPECT_EQ(excel.get("Sheets").get("Count").toLong(), 8);
    EXPECT_EQ(sheet("Data, 2026").get("Index").toLong(), 4);
    EXPECT_EQ(sheet("Overview").get("Index").toLong(), 3);
}

TEST_F(ExcelContract, TellsWorksheetsAndChartSheetsApart) {
    EXPECT_EQ(sheet("Sales").typeName(), "Worksheet");
    EXPECT_EQ(sheet("Sales").get("Type").toLong(), -4167);
    EXPECT_EQ(sheet("Overview").typeName(), "Chart");
    EXPECT_NE(sheet("Overview").get("Type").toLong(), -4167);
}

TEST_F(ExcelContract, ReadsTheThreeStatesOfASheet) {
    const std::vector<std::pair<const char*, std::int32_t>> states = {
        {"Sales", -1}, {"Overview", -1}, {"Hidden", 0}, {"Buried", 2}, {"Backstage", 0}};
    for (const auto& [name, state] : states) {
        EXPECT_EQ(sheet(name).get("Visible").toLong(), state) << name;
    }
}

TEST_F(ExcelContract, HidesASheetInEachOfTheThreeStates) {
    for (const std::int32_t state : {0, -1, 2, 0, 2, -1}) {
        sheet("Types").put("Visible", state);
        EXPECT_EQ(sheet("Types").get("Visible").toLong(), state);
    }
}

TEST_F(ExcelContract, FindsASheetWhateverTheCaseOfItsName) {
    EXPECT_EQ(sheet("sALES").get("Name").toText(), "Sales");
    EXPECT_EQ(sheet(2).get("Name").toText(), "Types");
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

TEST_F(ExcelContract, RefusesNamesThatASheetCantHave) {
    const Object types = sheet("Types");
    for (const char* name :
         {"", "sales", "a/b", "a[b", "overview", "a name of more than thirty-one letters"}) {
        EXPECT_EQ(failureOf([&] { types.put("Name", name); }), refused) << name;
        EXPECT_EQ(types.get("Name").toText(), "Types");
    }
    types.put("Name", "Kinds & more");
    EXPECT_EQ(sheet(2).get("Name").toText(), "Kinds & more");
}

TEST_F(ExcelContract, DeletesASheet) {
    const Object types = sheet("Types");
    excel.put("DisplayAlerts", false);
    types.call("Delete");
    EXPECT_EQ(book.get("Sheets").get("Count").toLong(), 7);
    EXPECT_NE(failureOf([&] { types.get("Name"); }), 0);
}

TEST_F(ExcelContract, ActivatesTheSheetThatIsSelected) {
    sheet("Types").call("Select");
    EXPECT_EQ(excel.get("ActiveSheet").get("Name").toText(), "Types");
    sheet("Overview").call("Activate");
    EXPECT_EQ(excel.get("ActiveSheet").toObject().typeName(), "Chart");
}

TEST_F(ExcelContract, TakesNoNewSheetWhileTheStructureIsProtected) {
    EXPECT_FALSE(book.get("ProtectStructure").toBool());
    const Object locked = open("contract-locked.xlsx");
    EXPECT_TRUE(locked.get("ProtectStructure").toBool());
    EXPECT_NE(failureOf([&] { locked.get("Worksheets").call("Add"); }), 0);
    EXPECT_EQ(locked.get("Sheets").get("Count").toLong(), 1);
}

TEST_F(ExcelContract, LeavesProtectedContentsAlone) {
    EXPECT_NE(failureOf([&] { range("Locked", "A1").put("Value", "changed"); }), 0);
    EXPECT_EQ(range("Locked", "A1").get("Value").toText(), "fixed");
}

TEST_F(ExcelContract, KnowsWhetherThereAreUnsavedChanges) {
    book.put("Saved", true);
    EXPECT_TRUE(book.get("Saved").toBool());
    range("Types", "C1").put("Value", "x");
    EXPECT_FALSE(book.get("Saved").toBool());
}

TEST_F(ExcelContract, ChangesAWorkbookWhoseFileItLeavesAlone) {
    const std::string file = environment().document("contract-readonly.xlsx");
    const Value books = excel.get("Workbooks");
    EXPECT_FALSE(book.get("ReadOnly").toBool());
    const Value opened = books.call("Open", arg("FileName", file), arg("ReadOnly", true));
    EXPECT_TRUE(opened.get("ReadOnly").toBool());
    EXPECT_EQ(opened.get("Name").toText(), "contract-readonly.xlsx");
    EXPECT_EQ(opened.get("FullName").toText(), file);
    EXPECT_EQ(opened.get("Sheets").get("Item", 2).toObject().typeName(), "Chart");
    opened.get("Sheets").get("Item", 1).get("Range", "A1").put("Value", "changed");
    EXPECT_EQ(opened.get("Sheets").get("Item", 1).get("Range", "A1").get("Value").toText(),
              "changed");
    EXPECT_EQ(opened.get("Worksheets").call("Add").get("Index").toLong(), 1);
    opened.call("Close", arg("SaveChanges", false));
}

TEST_F(ExcelContract, FailsOnEveryObjectOfAClosedWorkbook) {
    const Object sales = sheet("Sales");
    const Object cell = range("Sales", "B2");
    const Object chart = sales.get("ChartObjects").get("Item", 1).toObject();
    book.call("Close", arg("SaveChanges", false));
    EXPECT_NE(failureOf([&] { book.get("Name"); }), 0);
    EXPECT_NE(failureOf([&] { sales.get("Name"); }), 0);
    EXPECT_NE(failureOf([&] { cell.get("Value"); }), 0);
    EXPECT_NE(failureOf([&] { chart.get("Chart").get("Name"); }), 0);
}

}  // namespace

}  // namespace contract

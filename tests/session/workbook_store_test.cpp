#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "session/store_sheet.h"
#include "session/workbook_store.h"
#include "session_doubles/test_session.h"
#include "support/automation.h"

namespace {

using session_doubles::TestSession;
namespace store = session::store;

class WorkbookStore : public testing::Test {
protected:
    TestSession test;
    office_double::Workbook& book = test.suite.excel().addWorkbook("Book1.xlsx");

    WorkbookStore() {
        book.sheet("Sales");
        test.attach();
    }

    [[nodiscard]] std::string cell(const std::string& address) const {
        return test.sheet(store::sheetName).get("Range", address).get("Value").toText();
    }
    void put(const char* address, const office::Value& value) const {
        test.sheet(store::sheetName).get("Range", address).put("Value", value);
    }
    static session::ExportItem item(const std::string& name) {
        session::ExportItem made;
        made.name = name;
        made.sheet = "Sales";
        return made;
    }
    bool save(const std::vector<std::string>& names) {
        session::ExportList list;
        list.isLoaded = true;
        for (const std::string& name : names) list.rows.push_back(item(name));
        return session::SaveListToStore(test.session, list);
    }
};

TEST_F(WorkbookStore, IsAVeryHiddenSheetWithItsNamesAndFormats) {
    session::EnsureStoreSheet(test.session);
    const office::Object sheet = test.sheet(store::sheetName);
    EXPECT_EQ(sheet.get("Visible").toLong(), 2);
    for (const auto& [cell, format] : {std::pair("C7", "@"), {"D7", "0"}, {"H7", "@"}, {"T7", "@"}})
        EXPECT_EQ(sheet.get("Range", cell).get("NumberFormat").toText(), format) << cell;
    const office::Value names = test.session.ActiveBook.get("Names");
    support::expectMembers(names.get("Item", store::itemsName),
                           {{"RefersToRange.Address", "$A:$H"}});
    support::expectMembers(names.get("Item", store::reservedName),
                           {{"RefersToRange.Address", "$O$23:$V$30"}});
}

TEST_F(WorkbookStore, IsOneSheetBeneathTheOneThatTheUserLooksAt) {
    book.sheet("Costs");
    book.activateSheet("Sales");
    book.bringUpNewSheets();
    session::EnsureStoreSheet(test.session);
    EXPECT_EQ(book.activeTab()->name(), "Sales");
    EXPECT_TRUE(test.suite.log().texts("Sheets.Add").at(0).ends_with("Count:=1)"));
}

TEST_F(WorkbookStore, CannotBeMadeInAProtectedWorkbookAndSaysNothing) {
    book.protectStructure();
    session::EnsureStoreSheet(test.session);
    EXPECT_FALSE(session::SheetExists(test.session, store::sheetName));
    EXPECT_EQ(test.session.ActiveBook.get("Names").get("Count").toLong(), 0);
    EXPECT_TRUE(test.notices.shown.empty());
}

TEST_F(WorkbookStore, ReplacesTheRowsAndMarksTheirEnd) {
    session::EnsureStoreSheet(test.session);
    save({"Chart 1", "Chart 2", "Chart 3"});
    put("T3", "an orphan's title");
    save({"Chart 2", "007"});
    save({"Chart 2", "007"});
    EXPECT_EQ(cell("A2"), "007");
    EXPECT_EQ(cell("A3"), "");
    EXPECT_EQ(cell("G3"), "3");
    EXPECT_EQ(cell("G4"), "");
    EXPECT_EQ(cell("T3"), "an orphan's title");
    session::SaveListToStore(test.session, {});
    session::EnsureStoreSheet(test.session);
    EXPECT_EQ(cell("A2"), "007") << "a list that never came up, and a store that is there";
    save({});
    EXPECT_EQ(cell("A1") + cell("G1"), "1");
}

TEST_F(WorkbookStore, KeepsTextsAsTextAndTheOrderAsANumber) {
    session::EnsureStoreSheet(test.session);
    // As in a store that an earlier version has made.
    test.sheet(store::sheetName).get("Range", "T1").put("NumberFormat", "General");
    session::ExportList list;
    list.isLoaded = true;
    list.rows = {item("Chart 1")};
    session::ExportItem& chart = list.rows.front();
    chart.kind = session::ItemKind::Chart;
    chart.slideNumber = "3";
    chart.order = "12";
    chart.caption = "007";
    chart.laterRow = "9";
    session::SaveListToStore(test.session, list);
    const std::pair<const char*, office::Value> cells[] = {
        {"A1", "Chart 1"}, {"B1", "Sales"},        {"C1", "3"},
        {"D1", 12.0},      {"E1", true},           {"F1", "Embedded"},
        {"G1", ""},        {"H1", "Chart 1Sales"}, {"T1", "007"}};
    for (const auto& [address, value] : cells) {
        support::expectCell(test.sheet(store::sheetName).get("Range", address).get("Value"), value);
    }
}

TEST_F(WorkbookStore, IsWrittenInAFewCallsAndSaysNothingWhereTheWorkbookHasGone) {
    session::EnsureStoreSheet(test.session);
    test.suite.log().clear();
    save(std::vector<std::string>(200, "Chart"));
    EXPECT_LE(test.suite.log().count(), 20U);
    EXPECT_EQ(cell("A200"), "Chart");
    test.suite.failures().failAlways("Worksheets");
    EXPECT_FALSE(save({"Chart 1"}));
    EXPECT_TRUE(test.notices.shown.empty());
}

TEST_F(WorkbookStore, ComesBackWithTheListAfterSomebodyHasDeletedIt) {
    session::EnsureStoreSheet(test.session);
    test.sheet(store::sheetName).call("Delete");
    EXPECT_TRUE(save({"Chart 1"}));
    EXPECT_EQ(cell("A1"), "Chart 1");
    EXPECT_EQ(test.sheet(store::sheetName).get("Visible").toLong(), 2);
}

TEST_F(WorkbookStore, HoldsThePlacementAsSharesOrLeavesItOpen) {
    session::EnsureStoreSheet(test.session);
    session::writeStoredPlacement(test.session, {0.25, std::nullopt, 0.5});
    save({"Chart 1"});
    EXPECT_EQ(cell("O1") + " " + cell("P1") + " " + cell("R1"), "0.25 Default 0.5");
    put("R1", "");
    const session::Placement read = session::readStoredPlacement(test.session);
    EXPECT_EQ(read.top, 0.25);
    EXPECT_FALSE(read.width || read.left);
}

}  // namespace

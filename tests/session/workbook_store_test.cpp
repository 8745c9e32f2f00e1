#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "session/workbook_store.h"
#include "session_doubles/test_session.h"

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
    void write(const std::vector<std::string>& names) {
        office::Table rows(names.size(), store::columnCount);
        for (std::size_t i = 0; i < names.size(); ++i) rows.at(i + 1, 1) = names[i];
        office::ContinueOnFailure scope;
        session::writeStoreRows(test.session, scope, rows);
        EXPECT_FALSE(scope.failed());
    }
};

TEST_F(WorkbookStore, IsAVeryHiddenSheetWithItsNamesAndFormats) {
    session::EnsureStoreSheet(test.session);
    const office::Object sheet = test.sheet(store::sheetName);
    EXPECT_EQ(sheet.get("Visible").toLong(), 2);
    EXPECT_EQ(sheet.get("Range", "C7").get("NumberFormat").toText(), "@");
    EXPECT_EQ(sheet.get("Range", "D7").get("NumberFormat").toText(), "0");
    EXPECT_EQ(sheet.get("Range", "H7").get("NumberFormat").toText(), "@");

    const office::Value names = test.session.ActiveBook.get("Names");
    EXPECT_EQ(names.get("Item", store::itemsName).get("RefersToRange").get("Address").toText(),
              "$A:$H");
    EXPECT_EQ(names.get("Item", store::reservedName).get("RefersToRange").get("Address").toText(),
              "$O$23:$V$30");
}

TEST_F(WorkbookStore, IsMadeOnce) {
    session::EnsureStoreSheet(test.session);
    put("A1", "kept");
    session::EnsureStoreSheet(test.session);
    EXPECT_EQ(cell("A1"), "kept");
    EXPECT_EQ(book.tabs().size(), 2U);
}

TEST_F(WorkbookStore, CannotBeMadeInAProtectedWorkbookAndSaysNothing) {
    book.protectStructure();
    session::EnsureStoreSheet(test.session);
    EXPECT_FALSE(session::SheetExists(test.session, store::sheetName));
    EXPECT_TRUE(test.notices.shown.empty());
}

TEST_F(WorkbookStore, IsNotAskedForWithoutAWorkbook) {
    test.session.ActiveBook.release();
    session::EnsureStoreSheet(test.session);
    EXPECT_FALSE(session::SheetExists(test.session, "Sales"));
}

TEST_F(WorkbookStore, ReplacesTheRowsAndMarksTheirEnd) {
    session::EnsureStoreSheet(test.session);
    write({"Chart 1", "Chart 2", "Chart 3"});
    put("T3", "an orphan's title");
    write({"Chart 2", "007"});
    write({"Chart 2", "007"});
    EXPECT_EQ(cell("A2"), "007");
    EXPECT_EQ(cell("A3"), "");
    EXPECT_EQ(cell("G3"), "3");
    EXPECT_EQ(cell("G4"), "");
    EXPECT_EQ(cell("T3"), "an orphan's title");
}

TEST_F(WorkbookStore, KeepsThePlacementWhenTheListIsSaved) {
    session::EnsureStoreSheet(test.session);
    put("O1", 0.25);
    put("P1", "Default");
    put("R1", 0.5);
    write({"Chart 1"});
    EXPECT_EQ(cell("O1"), "0.25");
    EXPECT_EQ(cell("P1"), "Default");
    EXPECT_EQ(cell("Q1"), "");
    EXPECT_EQ(cell("R1"), "0.5");
}

TEST_F(WorkbookStore, IsOnlyClearedForAnEmptyList) {
    session::EnsureStoreSheet(test.session);
    write({"Chart 1"});
    office::ContinueOnFailure scope;
    session::writeStoreRows(test.session, scope, office::Table(0, store::columnCount));
    EXPECT_EQ(cell("A1"), "");
    EXPECT_EQ(cell("G1"), "1");
}

}  // namespace

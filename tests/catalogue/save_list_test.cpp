#include <gtest/gtest.h>

#include "catalogue/save_list.h"
#include "loaded_list.h"
#include "session/workbook_store.h"

namespace {

using catalogue_tests::row;
using session_doubles::TestSession;

class SavedList : public testing::Test {
protected:
    TestSession test;
    catalogue::ExportList list;

    SavedList() {
        test.suite.excel().addWorkbook("Book1.xlsx").sheet("Sales");
        test.attach();
        session::EnsureStoreSheet(test.session);
        list.rows = {row("Chart 1", "Sales", "Embedded")};
        list.rows.front().SubItems(2) = "3";
        list.rows.front().SubItems(3) = "12";
        list.rows.front().SubItems(4) = "Title";
        list.rows.front().SubItems(6) = "9";
    }

    [[nodiscard]] office::Value cell(const char* address) const {
        return test.sheet(session::store::sheetName).get("Range", address).get("Value");
    }
};

TEST_F(SavedList, KeepsTheSlideNumberAsTextAndTheOrderAsANumber) {
    catalogue::SaveListToStore(test.session, list);
    EXPECT_TRUE(cell("C1").isText());
    EXPECT_EQ(cell("C1").toText(), "3");
    EXPECT_TRUE(cell("D1").isNumber());
    EXPECT_EQ(cell("D1").toLong(), 12);
    EXPECT_TRUE(cell("E1").toBool());
    EXPECT_EQ(cell("F1").toText(), "Embedded");
    EXPECT_EQ(cell("G1").toText(), "9");
    EXPECT_EQ(cell("H1").toText(), "Chart 1Sales");
    EXPECT_EQ(cell("T1").toText(), "Title");
}

TEST_F(SavedList, IsWrittenAsOneBlock) {
    for (int i = 0; i < 200; ++i) list.rows.push_back(row("Chart", "Sales", "Embedded", false));
    test.suite.log().clear();
    catalogue::SaveListToStore(test.session, list);
    EXPECT_LE(test.suite.log().count(), 20U);
    EXPECT_EQ(cell("E201").toBool(), false);
}

TEST_F(SavedList, LeavesNoMessageWhereTheWorkbookHasGone) {
    test.suite.failures().failAlways("Worksheets");
    catalogue::SaveListToStore(test.session, list);
    EXPECT_TRUE(test.notices.shown.empty());
}

}  // namespace

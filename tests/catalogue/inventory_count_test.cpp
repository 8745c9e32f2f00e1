#include <gtest/gtest.h>

#include "catalogue/inventory.h"
#include "session_doubles/test_session.h"

namespace {

using session_doubles::TestSession;

class QuickCount : public testing::Test {
protected:
    TestSession test;
    office_double::Workbook& book = test.suite.excel().addWorkbook("Book1.xlsx");

    int count() {
        test.attach();
        catalogue::CountWorkbookItems(test.session);
        return test.session.ItemCount;
    }
};

TEST_F(QuickCount, TakesChartsChartSheetsAndNamedRangesHiddenOrNot) {
    book.sheet("Sales").chart("Chart 1").chart("Chart 2");
    book.sheet("Hidden").chart("Chart 3").hide();
    book.chartSheet("Overview");
    book.define("Total", "=Sales!$A$1").defineHidden("Secret", "=Sales!$B$1");
    EXPECT_EQ(count(), 6);
}

TEST_F(QuickCount, LeavesOutReservedNamesAndNamesOfNoRange) {
    book.sheet("Sales");
    book.define("MurvaneReservedName01", "=Sales!$A$1")
        .define("MurvaneReservedName02", "=Sales!$A$1")
        .define("AllZichron11111", "=Sales!$A$1")
        .define("Rate", "=42")
        .define("Broken", "=#REF!$A$1")
        .define("Total", "=Sales!$A$1");
    EXPECT_EQ(count(), 1);
}

TEST_F(QuickCount, IsZeroWithoutAWorkbook) {
    book.sheet("Sales").chart("Chart 1");
    test.session.ItemCount = 5;
    catalogue::CountWorkbookItems(test.session);
    EXPECT_EQ(test.session.ItemCount, 0);
}

}  // namespace

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "catalogue/inventory_walk.h"
#include "loaded_list.h"
#include "session/workbook_store.h"

namespace {

using catalogue::CheckAllState;
using catalogue::ExportRow;
using catalogue_tests::LoadedList;
using session_doubles::TestSession;
using Words = std::vector<std::string>;

class Inventory : public testing::Test {
protected:
    TestSession test;
    office_double::Workbook& book = test.suite.excel().addWorkbook("Book1.xlsx");

    LoadedList load() {
        test.attach();
        return LoadedList(test);
    }
    /// Loads with the store made before and this sheet on top.
    LoadedList loadFrom(const std::string& sheetName) {
        test.attach();
        session::EnsureStoreSheet(test.session);
        book.activateSheet(sheetName);
        return LoadedList(test);
    }
};

TEST_F(Inventory, ListsAFreshWorkbookInTheOrderOfItsSheets) {
    book.sheet("Sales").chart("Chart 1").chart("Chart 2");
    book.chartSheet("Overview");
    book.sheet("Costs").chart("Chart 1");
    book.define("Total", "=Costs!$A$1:$B$2");
    const LoadedList loaded = load();

    EXPECT_EQ(loaded.names(), (Words{"Chart 1@Sales", "Chart 2@Sales", "{Chart Sheet}@Overview",
                                     "Chart 1@Costs", "Total@Costs"}));
    EXPECT_EQ(loaded.check1, CheckAllState::All);
    EXPECT_EQ(loaded.list.selected, 0);
    const ExportRow& total = loaded.list.rows.back();
    EXPECT_EQ(total.SubItems(3), "5");
    EXPECT_EQ(total.SubItems(5), "Range");
    EXPECT_EQ(total.SubItems(6), "");
    EXPECT_EQ(total.SubItems(7), "TotalCosts");
    EXPECT_EQ(total.SmallIcon, 4);
    EXPECT_EQ(loaded.list.rows.at(0).SmallIcon, 3);
    EXPECT_EQ(loaded.list.rows.at(2).SmallIcon, 1);
    EXPECT_EQ(loaded.list.rows.at(2).SubItems(5), "Chart");
}

TEST_F(Inventory, LeavesOutWhatIsHiddenForeignOrNoRange) {
    book.sheet("Sales").chart("Chart 1");
    book.sheet("Hidden").chart("Chart 2").hide();
    book.chartSheet("Old").veryHide();
    test.suite.excel().addWorkbook("Other.xlsx").sheet("Sales");
    test.suite.excel().activate(book);
    book.define("Shown", "=Sales!$A$1")
        .defineHidden("Secret", "=Sales!$A$1")
        .define("OnHidden", "=Hidden!$A$1")
        .define("Elsewhere", "=[Other.xlsx]Sales!$A$1")
        .define("Rate", "=42")
        .define("Broken", "=#REF!$A$1");
    EXPECT_EQ(load().names(), (Words{"Chart 1@Sales", "Shown@Sales"}));
    EXPECT_EQ(test.session.ItemCount, 2);
}

TEST_F(Inventory, ListsASheetLevelNameByThePartBehindTheMark) {
    book.sheet("My Sales").define("Local", "A1:B2");
    book.define("Local", "='My Sales'!$C$3");
    const LoadedList loaded = load();
    EXPECT_EQ(loaded.names(), (Words{"Local@My Sales", "Local@My Sales"}));
    EXPECT_EQ(loaded.list.rows.at(0).SubItems(7), loaded.list.rows.at(1).SubItems(7));
}

TEST_F(Inventory, UnchecksAndReddensARangeOfSeveralAreas) {
    book.sheet("Sales").define("Parts", "A1:A5,C1:C5").define("Whole", "A1:C5");
    const LoadedList loaded = load();
    const ExportRow& parts = loaded.list.rows.at(0);
    EXPECT_FALSE(parts.Checked);
    EXPECT_EQ(parts.ForeColor, catalogue::RowColourRefused);
    EXPECT_EQ(parts.SubItems(3), "");
    EXPECT_TRUE(loaded.list.rows.at(1).Checked);
    EXPECT_EQ(loaded.list.rows.at(1).SubItems(3), "1");
    // The count of checked rows isn't reduced again.
    EXPECT_EQ(loaded.check1, CheckAllState::All);
}

TEST_F(Inventory, JudgesANameByTheOneThatItsSheetFinds) {
    book.sheet("Sales").define("Same", "A1:B2");
    book.define("Same", "=Sales!$A$1,Sales!$C$3");
    for (const ExportRow& row : load().list.rows) EXPECT_TRUE(row.Checked) << row.Text;
}

TEST_F(Inventory, IsEmptyForAWorkbookWhoseOnlyChartsAreHidden) {
    book.sheet("Sales");
    book.sheet("Hidden").chart("Chart 1").hide();
    const LoadedList loaded = load();
    EXPECT_TRUE(loaded.list.rows.empty());
    EXPECT_EQ(loaded.list.selected, -1);
    EXPECT_EQ(loaded.check1, CheckAllState::None);
}

TEST_F(Inventory, LeavesAChartSheetForTheFirstVisibleWorksheetBehindTheFirstSheet) {
    book.chartSheet("Overview");
    book.sheet("Hidden").hide();
    book.sheet("Sales").chart("Chart 1");
    book.sheet("Costs");
    const LoadedList loaded = loadFrom("Overview");
    EXPECT_EQ(loaded.values.StartSheetName, "Overview");
    EXPECT_EQ(book.activeTab()->name(), "Sales");
}

TEST_F(Inventory, StaysOnAnActiveWorksheet) {
    book.sheet("Sales");
    book.sheet("Costs").chart("Chart 1");
    EXPECT_EQ(loadFrom("Sales").values.StartSheetName, "");
    EXPECT_EQ(book.activeTab()->name(), "Sales");
}

TEST_F(Inventory, MakesTheStoreBehindTheLastSheet) {
    book.sheet("Sales").chart("Chart 1");
    book.sheet("Costs");
    load();
    EXPECT_EQ(book.tabs().back()->name(), session::store::sheetName);
    EXPECT_EQ(book.tabs().back()->visibility(), 2);
}

TEST_F(Inventory, MovesTheLoadingBarByTheQuickCount) {
    book.sheet("Sales").chart("Chart 1").chart("Chart 2");
    book.sheet("Hidden").chart("Chart 3").chart("Chart 4").hide();
    load();
    EXPECT_EQ(test.progress.calls, (Words{"show loading", "loading 25", "loading 50"}));
    EXPECT_EQ(test.host.pumps, 2);
}

TEST_F(Inventory, ClearsTheBarWhereItsPercentageMeetsTheCount) {
    book.sheet("Sales").chart("1").chart("2").chart("3").chart("4").chart("5");
    catalogue::InventoryValues values;
    values.ExpectedItems = 50;
    values.LoadProgress = 24;
    for (int i = 0; i < 2; ++i) catalogue::AdvanceLoadBar(test.session, values);
    EXPECT_EQ(test.progress.calls, (Words{"loading 50", "clear loading"}));
}

class ExcelSettings : public Inventory {
protected:
    void expectOn() {
        EXPECT_TRUE(test.session.ExcelApp.get("ScreenUpdating").toBool());
        EXPECT_TRUE(test.session.ExcelApp.get("EnableEvents").toBool());
        EXPECT_EQ(test.session.ExcelApp.get("Calculation").toLong(), -4105);
    }
};

TEST_F(ExcelSettings, AreOffDuringTheWalkAndOnAfterIt) {
    book.sheet("Sales").chart("Chart 1");
    bool wasOff = false;
    test.host.onEvents = [&] {
        wasOff = !test.session.ExcelApp.get("ScreenUpdating").toBool() &&
                 !test.session.ExcelApp.get("EnableEvents").toBool() &&
                 test.session.ExcelApp.get("Calculation").toLong() == -4135;
    };
    load();
    EXPECT_TRUE(wasOff);
    expectOn();
}

TEST_F(ExcelSettings, AreOnAgainAfterAFailure) {
    book.sheet("Sales").chart("Chart 1");
    test.attach();
    test.suite.failures().failAlways("ChartObject.Name");
    EXPECT_THROW(LoadedList{test}, office::Failure);
    expectOn();
}

}  // namespace

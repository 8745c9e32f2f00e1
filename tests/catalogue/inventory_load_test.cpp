#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "catalogue/row_objects.h"
#include "loaded_list.h"
#include "session/store_sheet.h"

namespace {

using catalogue::CheckAllState;
using catalogue::ExportItem;
using catalogue::ItemKind;
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
    const ExportItem& total = loaded.list.rows.back();
    EXPECT_EQ(total.order, "5");
    EXPECT_EQ(total.kind, ItemKind::Range);
    EXPECT_EQ(total.laterRow, "");
    EXPECT_EQ(loaded.list.rows.at(0).kind, ItemKind::Chart);
    EXPECT_EQ(loaded.list.rows.at(2).kind, ItemKind::ChartSheet);
}

TEST_F(Inventory, LeavesOutWhatIsHiddenForeignReservedOrNoRange) {
    book.sheet("Sales").chart("Chart 1");
    book.sheet("Sales").define("Print_Titles", "$1:$1");
    book.sheet("Hidden").chart("Chart 2").hide();
    book.chartSheet("Old").veryHide();
    test.suite.excel().addWorkbook("Other.xlsx").sheet("Sales");
    test.suite.excel().activate(book);
    book.define("Shown", "=Sales!$A$1")
        .defineHidden("Secret", "=Sales!$A$1")
        .define("_FilterDatabase", "=Sales!$A$1:$B$2")
        .define("OnHidden", "=Hidden!$A$1")
        .define("Elsewhere", "=[Other.xlsx]Sales!$A$1")
        .define("Rate", "=42")
        .define("Broken", "=#REF!$A$1");
    for (const char* reserved :
         {"MurvaneReservedName01", "MurvaneReservedName02", "AllZichron11111"})
        book.define(reserved, "=Sales!$A$1");
    test.attach();
    catalogue::CountWorkbookItems(test.session);
    EXPECT_EQ(test.session.ItemCount, 7) << "the quick count takes the hidden ones";
    book.undefine("AllZichron11111");
    EXPECT_EQ(load().names(), (Words{"Chart 1@Sales", "Shown@Sales"}));
    EXPECT_EQ(test.session.ItemCount, 2);
}

TEST_F(Inventory, ListsASheetLevelNameByThePartBehindTheMark) {
    book.sheet("My Sales").define("Local", "A1:B2");
    book.define("Local", "='My Sales'!$C$3");
    const LoadedList loaded = load();
    EXPECT_EQ(loaded.names(), (Words{"Local@My Sales", "Local@My Sales"}));
}

TEST_F(Inventory, KeepsTheSheetOfANameThatLeadsToAnotherOneAndFindsItsCells) {
    for (const char* sheet : {"Bob's", "Jan", "Feb 1", "Data"}) book.sheet(sheet);
    test.attach();
    for (const auto& [name, cells] :
         {std::pair("'Bob''s'!Total", "='Bob''s'!$A$1"), std::pair("Jan!Total", "=Data!$A$1:$B$9"),
          std::pair("'Feb 1'!Total", "=Data!$D$1:$E$9"), std::pair("Total", "=Data!$G$1"),
          std::pair("Data!Other", "=Jan!$H$1")})
        test.session.ActiveBook.get("Names").call("Add", name, cells);
    const LoadedList loaded = load();
    EXPECT_EQ(loaded.names(), (Words{"Total@Bob's", "Data!Other@Jan", "Jan!Total@Data",
                                     "'Feb 1'!Total@Data", "Total@Data"}));
    Words cells;
    for (const ExportItem& row : loaded.list.rows)
        cells.push_back(catalogue::requiredRange(test.session, row).get("Address").toText());
    EXPECT_EQ(cells, (Words{"$A$1", "$H$1", "$A$1:$B$9", "$D$1:$E$9", "$G$1"}));
    const ExportItem other = catalogue_tests::row("Other", "Data", ItemKind::Range);
    EXPECT_FALSE(catalogue::rangeOf(test.session, other)) << "it lies on another sheet";
}

TEST_F(Inventory, UnchecksAndReddensARangeOfSeveralAreas) {
    book.sheet("Sales").define("Parts", "A1:A5,C1:C5").define("Whole", "A1:C5");
    const LoadedList loaded = load();
    const ExportItem& parts = loaded.list.rows.at(0);
    EXPECT_FALSE(parts.checked);
    EXPECT_TRUE(parts.hasSeveralAreas);
    EXPECT_EQ(parts.order, "");
    EXPECT_TRUE(loaded.list.rows.at(1).checked);
    EXPECT_EQ(loaded.list.rows.at(1).order, "1");
    // The count of checked rows isn't reduced again.
    EXPECT_EQ(loaded.check1, CheckAllState::All);
}

TEST_F(Inventory, JudgesANameByTheOneThatItsSheetFinds) {
    book.sheet("Sales").define("Same", "A1:B2");
    book.define("Same", "=Sales!$A$1,Sales!$C$3");
    for (const ExportItem& row : load().list.rows) EXPECT_TRUE(row.checked) << row.name;
}

TEST_F(Inventory, IsEmptyForAWorkbookWhoseOnlyChartsAreHiddenAndForNone) {
    catalogue::CountWorkbookItems(test.session);
    EXPECT_EQ(test.session.ItemCount, 0);
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
    for (const auto& [before, after] :
         {std::pair("Overview", "Sales"), std::pair("Costs", "Costs")}) {
        test.attach();
        session::EnsureStoreSheet(test.session);
        book.activateSheet(before);
        static_cast<void>(LoadedList{test});
        EXPECT_EQ(book.activeTab()->name(), after);
    }
}

TEST_F(Inventory, ComesUpAlsoWhereNoSheetCanBeBroughtUp) {
    book.chartSheet("Overview");
    book.sheet("Sales").chart("Chart 1");
    book.activateSheet("Overview");
    test.suite.failures().failAlways("Worksheet.Select");
    EXPECT_EQ(load().names(), (Words{"{Chart Sheet}@Overview", "Chart 1@Sales"}));
}

TEST_F(Inventory, MovesTheLoadingBarByTheQuickCount) {
    book.sheet("Sales").chart("Chart 1").chart("Chart 2");
    book.sheet("Hidden").chart("Chart 3").chart("Chart 4").hide();
    load();
    EXPECT_EQ(test.progress.calls, (Words{"show loading", "loading 25", "loading 50"}));
    EXPECT_EQ(test.host.pumps, 2);
}

TEST_F(Inventory, ClearsTheBarWhereItsPercentageMeetsTheCount) {
    auto& sheet = book.sheet("Sales");
    for (int i = 0; i < 10; ++i) sheet.chart("Chart " + std::to_string(i));
    load();
    EXPECT_EQ(Words(test.progress.calls.begin(), test.progress.calls.begin() + 4),
              (Words{"show loading", "loading 10", "clear loading", "loading 30"}));
}

TEST_F(Inventory, SetsExcelBackAfterTheWalkAlsoAfterAFailure) {
    book.sheet("Sales").chart("Chart 1");
    const auto settings = [&] {
        const office::Object& excel = test.session.ExcelApp;
        return excel.get("ScreenUpdating").toText() + excel.get("EnableEvents").toText() +
               excel.get("Calculation").toText();
    };
    std::string during;
    test.host.onEvents = [&] { during = settings(); };
    load();
    EXPECT_EQ(during, "FalseFalse-4135");
    EXPECT_EQ(settings(), "TrueTrue-4105");
    test.session.ExcelApp.put("Calculation", 2);
    load();
    EXPECT_EQ(during, "FalseFalse-4135");
    EXPECT_EQ(settings(), "TrueTrue2") << "as the user has it";
    test.session.ExcelApp.put("Calculation", -4105);
    test.suite.failures().failAlways("ChartObject.Name");
    EXPECT_THROW(LoadedList{test}, office::Failure);
    EXPECT_EQ(settings(), "TrueTrue-4105");
}

}  // namespace

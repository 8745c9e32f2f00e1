#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "loaded_list.h"
#include "session/store_sheet.h"
#include "session/workbook_store.h"

namespace {

using catalogue_tests::LoadedList;
using session_doubles::TestSession;
using Words = std::vector<std::string>;

class StoreMerge : public testing::Test {
protected:
    TestSession test;
    office_double::Workbook& book = test.suite.excel().addWorkbook("Book1.xlsx");

    StoreMerge() {
        book.sheet("Sales").chart("Chart 1").chart("Chart 2");
        test.attach();
        session::EnsureStoreSheet(test.session);
    }

    /// One run: the list loaded, changed by the user, and saved.
    template <class Change>
    void run(const Change& change) {
        LoadedList loaded(test);
        change(loaded.list);
        session::SaveListToStore(test.session, loaded.list);
    }
    void run() {
        run([](catalogue::ExportList&) {});
    }

    [[nodiscard]] office::Value cell(const std::string& address) const {
        return test.sheet(session::store::sheetName).get("Range", address).get("Value");
    }
    [[nodiscard]] std::string text(const std::string& address) const {
        return cell(address).toText();
    }
};

TEST_F(StoreMerge, WritesAllItemsIntoAnEmptyStore) {
    book.define("Total", "=Sales!$A$1");
    const LoadedList loaded(test);
    EXPECT_EQ(text("A3"), "Total");
    EXPECT_EQ(text("B3"), "Sales");
    EXPECT_EQ(text("D3"), "1") << "the store stands behind the sheets";
    EXPECT_TRUE(cell("E3").toBool());
    EXPECT_EQ(text("F3"), "Range");
    EXPECT_EQ(text("G3"), "");
    EXPECT_EQ(text("H3"), "TotalSales");
    EXPECT_EQ(text("A4"), "");
}

TEST_F(StoreMerge, KeepsOrderChecksNumbersAndCaptionsFromRunToRun) {
    run([](catalogue::ExportList& list) {
        std::swap(list.rows.at(0), list.rows.at(1));
        list.rows.at(0).slideNumber = "007";
        list.rows.at(0).caption = "A \"title\" with = and Ü";
        list.rows.at(1).checked = false;
    });
    const LoadedList loaded(test);
    EXPECT_EQ(loaded.names(), (Words{"Chart 2@Sales", "Chart 1@Sales"}));
    EXPECT_EQ(loaded.list.rows.at(0).slideNumber, "007");
    EXPECT_EQ(loaded.list.rows.at(0).caption, "A \"title\" with = and Ü");
    EXPECT_TRUE(loaded.list.rows.at(0).checked);
    EXPECT_FALSE(loaded.list.rows.at(1).checked);
    EXPECT_EQ(loaded.check1, catalogue::CheckAllState::Some);
}

TEST_F(StoreMerge, KnowsItemsByKindNameAndSheetTogether) {
    run();
    book.sheet("1Sales").chart("Chart ");
    book.define("Chart 1", "=Sales!$A$1");
    EXPECT_EQ(LoadedList(test).names(),
              (Words{"Chart 1@Sales", "Chart 2@Sales", "Chart @1Sales", "Chart 1@Sales"}));
    EXPECT_EQ(LoadedList(test).names().size(), 4U);
}

TEST_F(StoreMerge, AppendsNewItemsBelowTheMarkerRow) {
    run();
    book.sheet("Sales").chart("Chart 3");
    book.define("Total", "=Sales!$A$1");
    const LoadedList loaded(test);
    EXPECT_EQ(loaded.names(),
              (Words{"Chart 1@Sales", "Chart 2@Sales", "Chart 3@Sales", "Total@Sales"}));
    EXPECT_TRUE(loaded.list.rows.at(2).checked);
    EXPECT_EQ(loaded.list.rows.at(2).laterRow, "4");
    EXPECT_EQ(loaded.list.rows.at(3).laterRow, "4");
    EXPECT_EQ(text("G3"), "3");
    EXPECT_EQ(text("A4"), "Chart 3");
    run([](catalogue::ExportList& list) { std::swap(list.rows.at(0), list.rows.at(2)); });
    EXPECT_EQ(LoadedList(test).names(),
              (Words{"Chart 3@Sales", "Chart 2@Sales", "Chart 1@Sales", "Total@Sales"}));
}

TEST_F(StoreMerge, KeepsTheOrderOfTheSheetsAlsoWhereTheFirstListWasNotSaved) {
    book.define("Total", "=Sales!$A$1");
    book.sheet("Costs").chart("Chart 1");
    const Words sorted = {"Chart 1@Sales", "Chart 2@Sales", "Total@Sales", "Chart 1@Costs"};
    EXPECT_EQ(LoadedList(test).names(), sorted);
    EXPECT_EQ(LoadedList(test).names(), sorted);
}

TEST_F(StoreMerge, KnowsAChartSheetAgainThatHasBecomeAWorksheet) {
    run([](catalogue::ExportList& list) {
        session::ExportItem sheet;
        sheet.name = session::chartSheetText;
        sheet.sheet = "Costs";
        sheet.kind = session::ItemKind::ChartSheet;
        sheet.checked = true;
        sheet.caption = "The costs";
        list.rows.push_back(sheet);
    });
    book.sheet("Costs").chart("Chart 1").chart("Chart 2");
    const LoadedList loaded(test);
    EXPECT_EQ(loaded.names(),
              (Words{"Chart 1@Sales", "Chart 2@Sales", "{Chart Sheet}@Costs", "Chart 2@Costs"}));
    EXPECT_EQ(catalogue::CountExportableRows(test.session, loaded.list), 4);
}

TEST_F(StoreMerge, KnowsANameAgainThatWasStoredWithoutItsSheetOrTheQuoteAheadOfThat) {
    const auto names = test.session.ActiveBook.get("Names");
    book.sheet("Jan 1");
    names.call("Add", "'Jan 1'!Total", "=Sales!$A$1");
    for (const auto& [stored, listed] :
         {std::pair("Total", "'Jan 1'!Total@Sales"),
          std::pair("Jan 1'!Total", "'Jan 1'!Total@Sales"), std::pair("Totals", "Totals@Sales")}) {
        run([&](catalogue::ExportList& list) {
            list.rows = {catalogue_tests::row(stored, "Sales", session::ItemKind::Range)};
            list.rows[0].caption = "Kept";
        });
        const LoadedList loaded(test);
        EXPECT_EQ(loaded.names()[0], listed);
        EXPECT_EQ(loaded.list.rows[0].caption, "Kept");
        EXPECT_EQ(loaded.list.rows.size(), stored == std::string("Totals") ? 4U : 3U);
    }
    book.sheet("Sales").chart("Plan '24'! net");
    run([](catalogue::ExportList& list) {
        list.rows = {catalogue_tests::row("Plan '24'! net", "Sales", session::ItemKind::Chart)};
    });
    EXPECT_EQ(LoadedList(test).names()[0], "Plan '24'! net@Sales");
}

TEST_F(StoreMerge, IsListedWithoutATraceInTheWorkbook) {
    run([](catalogue::ExportList& list) {
        std::swap(list.rows.at(0), list.rows.at(1));
        list.rows.at(0).caption = "Kept";
    });
    book.sheet("Sales").chart("Chart 3");
    auto& other = test.suite.excel().addWorkbook("Other.xlsx");
    other.chartSheet("Overview");
    other.sheet("Costs").chart("Chart 1").define("Parts", "A1:A5,C1:C5");
    for (auto* listed : {&book, &other}) {
        test.suite.excel().activate(*listed);
        test.attach();
        const std::size_t sheets = listed->tabs().size();
        catalogue::ExportList list;
        catalogue::ListItems(test.session, list);
        EXPECT_FALSE(list.isLoaded);
        EXPECT_EQ(listed->tabs().size(), sheets);
        for (const support::RecordedCall& call : test.suite.log().calls()) {
            EXPECT_EQ(call.kind, support::CallKind::Get) << call.text();
        }
        EXPECT_EQ(list.rows, LoadedList(test).list.rows) << "as the main form shows them";
    }
}

TEST_F(StoreMerge, AppendsNothingTwice) {
    run();
    book.sheet("Sales").chart("Chart 3");
    run();
    run();
    EXPECT_EQ(LoadedList(test).list.rows.size(), 3U);
}

TEST_F(StoreMerge, KeepsTheRowsOfWhatHasVanished) {
    book.define("Total", "=Sales!$A$1");
    run();
    test.sheet("Sales").get("ChartObjects").get("Item", "Chart 1").call("Delete");
    book.undefine("Total");
    const LoadedList loaded(test);
    EXPECT_EQ(loaded.names(), (Words{"Chart 1@Sales", "Chart 2@Sales", "Total@Sales"}));
    EXPECT_FALSE(loaded.list.rows.at(2).hasSeveralAreas);
}

TEST_F(StoreMerge, TakesARenamedSheetsItemsForNewOnes) {
    run();
    test.sheet("Sales").put("Name", "Turnover");
    EXPECT_EQ(LoadedList(test).names(),
              (Words{"Chart 1@Sales", "Chart 2@Sales", "Chart 1@Turnover", "Chart 2@Turnover"}));
}

TEST_F(StoreMerge, TakesACheckMarkThatIsNoneForOne) {
    run();
    test.sheet(session::store::sheetName).get("Range", "E1").put("Value", "yes");
    const LoadedList loaded(test);
    ASSERT_EQ(loaded.list.rows.size(), 2U);
    EXPECT_TRUE(loaded.list.rows[0].checked);
}

TEST_F(StoreMerge, DistinguishesKeysByCase) {
    run();
    book.sheet("Sales").chart("CHART 1");
    EXPECT_EQ(LoadedList(test).list.rows.size(), 3U);
}

TEST_F(StoreMerge, ThrowsAwayAStoreWithoutKeys) {
    const office::Object sheet = test.sheet(session::store::sheetName);
    sheet.get("Range", "A1").put("Value", "An old item");
    sheet.get("Range", "T1").put("Value", "Its caption");
    const LoadedList loaded(test);
    EXPECT_EQ(loaded.names(), (Words{"Chart 1@Sales", "Chart 2@Sales"}));
    EXPECT_EQ(loaded.list.rows.at(0).caption, "");
    EXPECT_EQ(sheet.get("Visible").toLong(), 2);
}

}  // namespace

#include <gtest/gtest.h>

#include <string>

#include "loaded_list.h"
#include "session/store_sheet.h"
#include "session/workbook_store.h"

namespace {

using catalogue_tests::LoadedList;
using session_doubles::TestSession;

/// A workbook of many named ranges and charts, with the store of an earlier run.
struct LargeWorkbook {
    TestSession test;
    office_double::Workbook& book = test.suite.excel().addWorkbook("Book1.xlsx");

    LargeWorkbook(int charts, int names, int storedRows) {
        auto& sheet = book.sheet("Sales");
        for (int i = 0; i < charts; ++i) sheet.chart("Chart " + std::to_string(i));
        for (int i = 0; i < names; ++i) {
            book.define("Range" + std::to_string(i), "=Sales!$A$" + std::to_string(i + 1));
        }
        test.attach();
        session::EnsureStoreSheet(test.session);
        catalogue::ExportList stored;
        stored.isLoaded = true;
        for (int i = 0; i < storedRows; ++i) {
            stored.rows.push_back(catalogue_tests::row("Chart " + std::to_string(i), "Sales",
                                                       catalogue_tests::ItemKind::Chart));
        }
        if (storedRows > 0) session::SaveListToStore(test.session, stored);
        test.suite.log().clear();
    }

    std::size_t callsToLoad() {
        const std::size_t before = test.suite.log().count();
        catalogue::ExportList list;
        catalogue::LoadItemsToForm(test.session, list);
        return test.suite.log().count() - before;
    }
};

TEST(InventorySpeed, CostsAFewCallsForAnItemHoweverManyThereAre) {
    // Writing the new items, however many, takes a few calls as well.
    const std::size_t fewCharts = LargeWorkbook(10, 0, 10).callsToLoad();
    const std::size_t manyCharts = LargeWorkbook(210, 0, 10).callsToLoad();
    EXPECT_LE(manyCharts - fewCharts, 200U * 2U + 5U);

    const std::size_t fewNames = LargeWorkbook(1, 10, 1).callsToLoad();
    const std::size_t manyNames = LargeWorkbook(1, 210, 1).callsToLoad();
    EXPECT_LE(manyNames - fewNames, 200U * 9U + 5U);
}

TEST(InventorySpeed, CostsNoCallForAStoredRow) {
    EXPECT_EQ(LargeWorkbook(5, 5, 10).callsToLoad(), LargeWorkbook(5, 5, 2000).callsToLoad());
}

}  // namespace

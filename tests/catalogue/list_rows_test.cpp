#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "catalogue/list_rows.h"
#include "loaded_list.h"

namespace {

using catalogue::ExportList;
using catalogue_tests::row;
using session_doubles::TestSession;

TEST(ListRows, AreNumberedInTheOrderOfTheCheckedOnes) {
    ExportList list;
    list.rows = {row("A", "S", "Embedded"), row("B", "S", "Embedded", false),
                 row("C", "S", "Embedded")};
    for (auto& each : list.rows) each.SubItems(3) = "7";
    catalogue::RenumberIncludedRows(list);
    EXPECT_EQ(list.rows.at(0).SubItems(3), "1");
    EXPECT_EQ(list.rows.at(1).SubItems(3), "");
    EXPECT_EQ(list.rows.at(2).SubItems(3), "2");
}

TEST(ListRows, AreColouredByCheckAndSlideNumber) {
    struct Case {
        bool checked;
        std::string slideNumber;
        catalogue::RowColour inNewSlides;
        catalogue::RowColour inPredefined;
    };
    using namespace catalogue;  // NOLINT(google-build-using-namespace): the colours
    const std::vector<Case> cases = {
        {true, "3", RowColourChecked, RowColourChecked},
        {true, " ", RowColourChecked, RowColourMuted},
        {false, "3", RowColourMuted, RowColourMuted},
    };
    for (const Case& it : cases) {
        ExportList list;
        list.rows = {row("A", "S", "Embedded", it.checked)};
        list.rows.front().SubItems(2) = it.slideNumber;
        ColorListRows(list, false);
        EXPECT_EQ(list.rows.front().ForeColor, it.inNewSlides);
        ColorListRows(list, true);
        EXPECT_EQ(list.rows.front().ForeColor, it.inPredefined);
    }
}

TEST(ListRows, StayRedOnceTheyAreRefused) {
    ExportList list;
    list.rows = {row("A", "S", "Range", false)};
    list.rows.front().ForeColor = catalogue::RowColourRefused;
    catalogue::ColorListRows(list, true);
    EXPECT_EQ(list.rows.front().ForeColor, catalogue::RowColourRefused);
    EXPECT_EQ(catalogue::CountCheckedRows(list), 0);
}

class RowsOnSheets : public testing::Test {
protected:
    TestSession test;
    ExportList list;

    RowsOnSheets() {
        auto& book = test.suite.excel().addWorkbook("Book1.xlsx");
        book.sheet("Shown");
        book.sheet("Hidden").hide();
        book.sheet("Deep").veryHide();
        book.chartSheet("Overview");
        test.attach();
        list.rows = {
            row("A", " Shown ", "Embedded"),
            row("B", "Hidden", "Embedded"),
            row("C", "Deep", "Range"),
            row("D", "Gone", "Range"),
            row("E", "", "Range"),
            row("F", "Shown", "Range", false),
            row("{Chart Sheet}", "Overview", "Chart"),
            row("{Chart Sheet}", "Shown", "Chart"),
        };
    }
};

TEST_F(RowsOnSheets, CountWhereTheirObjectCanBeSeen) {
    EXPECT_EQ(catalogue::CountCheckedRows(list), 7);
    EXPECT_EQ(catalogue::CountExportableRows(test.session, list), 2);
    std::string visible;
    for (const auto& each : list.rows) {
        if (catalogue::RowOnVisibleSheet(test.session, each)) visible += each.Text + " ";
    }
    EXPECT_EQ(visible, "A {Chart Sheet} ");
}

TEST_F(RowsOnSheets, AskForEachSheetOnce) {
    for (int i = 0; i < 500; ++i) list.rows.push_back(row("A", "Shown", "Embedded"));
    test.suite.log().clear();
    EXPECT_EQ(catalogue::CountExportableRows(test.session, list), 502);
    EXPECT_LE(test.suite.log().count(), 25U);
}

TEST(ListText, JoinsColumnsByTabs) {
    ExportList list;
    list.rows = {row("A", "S", "Range")};
    list.rows.front().SubItems(4) = "Caption";
    EXPECT_EQ(catalogue::listAsTabText(list),
              "Name/Type\tExcel sheet\tSlide Nb\tOrder\tCaption\tTypeObject\tOrder\tName&Sheet\r\n"
              "A\tS\t\t\tCaption\tRange\t\tAS\r\n\r\n");
}

}  // namespace

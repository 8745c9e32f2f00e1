#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "catalogue/list_order.h"

namespace {

using catalogue::ExportList;
using catalogue::ExportRow;

ExportList listOf(const std::vector<std::string>& texts, std::size_t column) {
    ExportList list;
    for (const std::string& text : texts) {
        ExportRow row;
        row.SubItems(7) = std::to_string(list.rows.size());
        (column == 1 ? row.Text : row.SubItems(column - 1)) = text;
        list.rows.push_back(row);
    }
    return list;
}

std::vector<std::string> columnOf(const ExportList& list, std::size_t column) {
    std::vector<std::string> texts;
    for (const ExportRow& row : list.rows) {
        texts.push_back(column == 1 ? row.Text : row.SubItems(column - 1));
    }
    return texts;
}

struct SortCase {
    std::string what;
    std::size_t column;
    std::vector<std::string> before;
    std::vector<std::string> after;
};

class AClickOnAColumn : public testing::TestWithParam<SortCase> {};

TEST_P(AClickOnAColumn, sortsAscendingByTheColumnsOwnType) {
    const SortCase& given = GetParam();
    ExportList list = listOf(given.before, given.column);
    catalogue::SotrListView(list, given.column, catalogue::sortTypeOfColumn(given.column));
    EXPECT_EQ(columnOf(list, given.column), given.after) << given.what;
    catalogue::SotrListView(list, given.column, catalogue::sortTypeOfColumn(given.column));
    EXPECT_EQ(columnOf(list, given.column), given.after) << "a second click changes nothing";
}

INSTANTIATE_TEST_SUITE_P(
    Columns, AClickOnAColumn,
    testing::Values(
        SortCase{"names, case aside",
                 1,
                 {"beta", "Alpha", "alpha 2", "Beta"},
                 {"Alpha", "alpha 2", "beta", "Beta"}},
        SortCase{"slide numbers as text", 3, {"9", "10", "2", ""}, {"", "10", "2", "9"}},
        SortCase{
            "order by value, unchecked rows first", 4, {"10", "", "9", "1"}, {"", "1", "9", "10"}},
        SortCase{"negative numbers ahead of zero",
                 7,
                 {"0", "-5", "3", "-20", "x"},
                 {"x", "-20", "-5", "0", "3"}},
        SortCase{"identities are no numbers and stay where they are",
                 8,
                 {"b", "a", "c"},
                 {"b", "a", "c"}}));

TEST(TheList, keepsTheOrderOfEqualRowsAndTheSelectedRowWhenItIsSorted) {
    ExportList list = listOf({"2", "1", "2", "1"}, 4);
    list.selected = 2;
    catalogue::SotrListView(list, 4, "number");
    EXPECT_EQ(columnOf(list, 8), (std::vector<std::string>{"1", "3", "0", "2"}));
    EXPECT_EQ(list.selected, 3);
}

TEST(TheList, movesTheWholeSelectedRowAndStopsAtItsEnds) {
    ExportList list = listOf({"a", "b", "c"}, 1);
    list.rows[1].ForeColor = catalogue::RowColourRefused;
    list.selected = 1;
    catalogue::moveSelectedUp(list);
    catalogue::moveSelectedUp(list);
    EXPECT_EQ(columnOf(list, 1), (std::vector<std::string>{"b", "a", "c"}));
    EXPECT_EQ(list.rows[0].ForeColor, catalogue::RowColourRefused);
    EXPECT_EQ(list.selected, 0);
    for (int i = 0; i < 4; ++i) catalogue::moveSelectedDown(list);
    EXPECT_EQ(columnOf(list, 1), (std::vector<std::string>{"a", "c", "b"}));
    list.selected = -1;
    catalogue::moveSelectedDown(list);
    EXPECT_EQ(columnOf(list, 1), (std::vector<std::string>{"a", "c", "b"}));
}

}  // namespace

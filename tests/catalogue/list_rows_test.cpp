#include <gtest/gtest.h>

#include <array>
#include <string>
#include <tuple>
#include <vector>

#include "catalogue/list_columns.h"
#include "catalogue/list_rows.h"
#include "catalogue/number_entry.h"
#include "loaded_list.h"

namespace {

using catalogue::ExportItem;
using catalogue::ExportList;
using catalogue_tests::ItemKind;
using catalogue_tests::row;
using session_doubles::TestSession;

TEST(ListRows, AreMutedByCheckAndSlideNumber) {
    const std::tuple<bool, const char*, bool, bool> cases[] = {
        {true, "3", false, false}, {true, " ", false, true}, {false, "3", true, true}};
    for (const auto& [checked, slideNumber, isMutedInNewSlides, isMutedInPredefined] : cases) {
        ExportList list;
        list.rows = {row("A", "S", ItemKind::Chart, checked)};
        list.rows.front().slideNumber = slideNumber;
        catalogue::ColorListRows(list, false);
        EXPECT_EQ(list.rows.front().isMuted, isMutedInNewSlides);
        catalogue::ColorListRows(list, true);
        EXPECT_EQ(list.rows.front().isMuted, isMutedInPredefined);
        list.rows.front().isMissing = true;
        catalogue::ColorListRows(list, false);
        EXPECT_TRUE(list.rows.front().isMuted);
    }
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
        book.sheet(" Own blanks ");
        book.chartSheet("Overview");
        test.attach();
        list.rows = {
            row("A", " Shown ", ItemKind::Chart),
            row("A", " Own blanks ", ItemKind::Chart),
            row("B", "Hidden", ItemKind::Chart),
            row("C", "Deep", ItemKind::Range),
            row("D", "Gone", ItemKind::Range),
            row("E", "", ItemKind::Range),
            row("F", "Shown", ItemKind::Range, false),
            row("{Chart Sheet}", "Overview", ItemKind::ChartSheet),
            row("{Chart Sheet}", "Shown", ItemKind::ChartSheet),
        };
    }
};

TEST_F(RowsOnSheets, CountWhereTheirObjectCanBeSeen) {
    EXPECT_EQ(catalogue::CountCheckedRows(list), 8);
    EXPECT_EQ(catalogue::CountExportableRows(test.session, list), 4);
}

TEST_F(RowsOnSheets, AskForEachSheetOnce) {
    for (int i = 0; i < 500; ++i) list.rows.push_back(row("A", "Shown", ItemKind::Chart));
    test.suite.log().clear();
    EXPECT_EQ(catalogue::CountExportableRows(test.session, list), 504);
    EXPECT_LE(test.suite.log().count(), 30U);
}

using Field = std::string ExportItem::*;

ExportList listOf(const std::vector<std::string>& texts, Field field) {
    ExportList list;
    for (const std::string& text : texts) {
        ExportItem row;
        row.sheet = std::to_string(list.rows.size());
        row.*field = text;
        list.rows.push_back(row);
    }
    return list;
}

std::vector<std::string> textsOf(const ExportList& list, Field field) {
    std::vector<std::string> texts;
    for (const ExportItem& row : list.rows) texts.push_back(row.*field);
    return texts;
}

TEST(TheList, isSortedAscendingByTheColumnsOwnType) {
    struct Case {
        std::size_t column;
        Field field;
        std::vector<std::string> before, after;
    };
    const Case cases[] = {
        {1,
         &ExportItem::name,
         {"beta", "Übersicht", "alpha 2", "Zeit", "Beta"},
         {"alpha 2", "beta", "Beta", "Übersicht", "Zeit"}},
        {3, &ExportItem::slideNumber, {"9", "10", "2", ""}, {"", "10", "2", "9"}},
        {4, &ExportItem::order, {"10", "", "9", "1"}, {"", "1", "9", "10"}},
        {7, &ExportItem::laterRow, {"0", "-5", "3", "-20", "x"}, {"x", "-20", "-5", "0", "3"}}};
    for (const auto& [column, field, before, after] : cases) {
        ExportList list = listOf(before, field);
        for (int click = 0; click < 2; ++click) {
            catalogue::SortByColumn(list, column);
            EXPECT_EQ(textsOf(list, field), after) << "a second click changes nothing";
        }
    }
}

TEST(TheList, keepsTheOrderOfEqualRowsAndTheSelectedRowWhenItIsSorted) {
    ExportList list = listOf({"2", "1", "2", "1"}, &ExportItem::order);
    list.selected = 2;
    catalogue::SortByColumn(list, 4);
    EXPECT_EQ(textsOf(list, &ExportItem::sheet), (std::vector<std::string>{"1", "3", "0", "2"}));
    EXPECT_EQ(list.selected, 3);
}

/// Names of one letter, capitals for the chosen ones.
ExportList listOfLetters(const std::string& letters) {
    ExportList list;
    for (const char letter : letters) {
        ExportItem row;
        row.name = letter;
        row.isMarked = letter < 'a';
        list.rows.push_back(row);
    }
    return list;
}

std::string lettersOf(const ExportList& list) {
    std::string letters;
    for (const ExportItem& row : list.rows) letters += row.name;
    return letters;
}

TEST(TheList, movesTheChosenRowsByOneAndStopsAtItsEnds) {
    struct Case {
        std::string before, up, down;
    };
    for (const auto& [before, up, down] : {Case{"aBc", "Bac", "acB"}, Case{"ABcD", "ABDc", "cABD"},
                                           Case{"aBCd", "BCad", "adBC"}, Case{"", "", ""}}) {
        ExportList list = listOfLetters(before);
        catalogue::MoveChosenRows(list, -1);
        EXPECT_EQ(lettersOf(list), up);
        list = listOfLetters(before);
        catalogue::MoveChosenRows(list, 1);
        EXPECT_EQ(lettersOf(list), down);
    }
}

TEST(TheList, movesTheChosenRowsToWhereTheyAreDropped) {
    struct Case {
        std::string before;
        std::size_t to;
        std::string after;
    };
    for (const auto& [before, to, after] :
         {Case{"aBcDe", 0, "BDace"}, Case{"aBcDe", 3, "acBDe"}, Case{"aBcDe", 5, "aceBD"},
          Case{"aBcDe", 99, "aceBD"}, Case{"aBcd", 1, "aBcd"}, Case{"aBcd", 2, "aBcd"}}) {
        ExportList list = listOfLetters(before);
        list.selected = 1;
        catalogue::MoveChosenRowsBefore(list, to);
        EXPECT_EQ(lettersOf(list), after);
        EXPECT_EQ(list.rows.at(static_cast<std::size_t>(list.selected)).name, "B");
    }
}

TEST(TheList, movesTheSelectedRowWhereNoneIsMarked) {
    ExportList list = listOfLetters("abc");
    for (const auto& [selected, after] : {std::pair(-1, "abc"), std::pair(1, "acb")}) {
        list.selected = selected;
        catalogue::MoveChosenRows(list, 1);
        EXPECT_EQ(lettersOf(list), after);
    }
    EXPECT_EQ(list.selected, 2);
}

TEST(ListColumns, ShareTheWidthOfTheList) {
    const std::tuple<std::int32_t, bool, std::array<std::int32_t, 5>> cases[] = {
        // usable 6375: 32, 16 and 12 per cent
        {6915, false, {2040, 1020, 0, 765, 2550}},
        // usable 5655: sum 1809 + 904 + 720 + 2264 = 5697 with order at its floor, scaled
        {6915, true, {1795, 897, 720, 714, 2249}},
        // usable 3000: sum 960 + 780 + 720 + 1200 = 3660, scaled; the caption takes the rest
        {3540, false, {900, 639, 0, 590, 871}},
        {0, false, {900, 639, 0, 590, 871}},
        // usable 2280: sum 729 + 780 + 720 + 914 = 3143; the name back at its floor, the caption at
        // its own
        {3000, true, {900, 565, 720, 522, 600}},
    };
    for (const auto& [listWidth, predefinedSlides, expected] : cases) {
        const auto widths = catalogue::SizeListColumns(listWidth, predefinedSlides);
        for (std::size_t i = 0; i < expected.size(); ++i)
            EXPECT_EQ(widths.at(i), expected.at(i)) << listWidth << ", column " << i + 1;
        EXPECT_EQ(widths.at(5) + widths.at(6) + widths.at(7), 0);
    }
}

TEST(ANumberBox, losesTheLastCharacterOfWhatIsNoNumber) {
    const std::pair<const char*, const char*> cases[] = {
        {"", ""},       {"12", "12"},   {"12a", "12"}, {"-", "-"},  {"-5", "-5"},  {"1.5", "1.5"},
        {"1,5", "1,5"}, {"1e3", "1e3"}, {" 7", " 7"},  {"7é", "7"}, {"abc", "ab"}, {"1-", "1"},
    };
    for (const auto& [typed, kept] : cases) {
        EXPECT_EQ(catalogue::Validate_Number_Entry(typed), kept) << typed;
    }
}

}  // namespace

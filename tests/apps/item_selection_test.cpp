#include <gtest/gtest.h>

#include "apps/murvane_export/errors.h"
#include "apps/murvane_export/item_selection.h"
#include "rows.h"

namespace {

using Indices = std::vector<std::size_t>;
using Texts = std::vector<std::string>;

TEST(ItemSelection, AReferenceMeansItsRows) {
    const std::pair<Texts, Indices> references[] = {
        {{"Chart 1@North"}, {0}},
        {{"Chart 1@South,Chart 1@North"}, {1, 0}},
        {{"Chart 1@South", "Chart 1@South"}, {1}},
        // A comma in a name: as the whole text, and among others in quotes.
        {{"Sales, total"}, {2}},
        {{"Overview, \"Sales, total\"@North"}, {4, 2}},
        {{"sales, TOTAL"}, {2}},
        {{"Overview"}, {4}},
        {{"{Chart Sheet}"}, {4}},
        {{"{Chart Sheet}@Overview"}, {4}},
        {{",, Overview ,"}, {4}}};
    for (const auto& [texts, rows] : references) {
        EXPECT_EQ(unattended::findItems(sampleList(), texts), rows) << texts.front();
    }
}

TEST(ItemSelection, ANameMayHoldTheSignThatSetsTheSheetOff) {
    catalogue::ExportList list;
    list.rows.push_back(rowOf("a@b", "S@T", ItemKind::Range));
    for (const char* text : {"a@b", "a@b@S@T"}) {
        EXPECT_EQ(unattended::findItems(list, {text}), Indices{0}) << text;
    }
}

TEST(ItemSelection, TheExactNameGoesBeforeOneOfOtherCase) {
    catalogue::ExportList list;
    list.rows.push_back(rowOf("TOTAL", "S", ItemKind::Range));
    list.rows.push_back(rowOf("Total", "T", ItemKind::Range));
    EXPECT_EQ(unattended::findItems(list, {"Total"}), Indices{1});
    EXPECT_THROW(unattended::findItems(list, {"total"}), unattended::UsageError);
}

TEST(ItemSelection, ASheetsOwnNameMayGoWithoutItsSheetWhereNothingElseIsCalledSo) {
    catalogue::ExportList list;
    list.rows.push_back(rowOf("Jan!Total", "Data", ItemKind::Range));
    list.rows.push_back(rowOf("Jan!Rate", "Data", ItemKind::Range));
    list.rows.push_back(rowOf("Rate", "Data", ItemKind::Range));
    for (const auto& [text, row] : {std::pair("Jan!Total", 0U), std::pair("Total@Data", 0U),
                                    std::pair("total", 0U), std::pair("Rate", 2U)})
        EXPECT_EQ(unattended::findItems(list, {text}), Indices{row}) << text;
    list.rows.push_back(rowOf("Net!Share", "Data", ItemKind::Chart));
    EXPECT_THROW(unattended::findItems(list, {"Share"}), unattended::UsageError);
}

TEST(ItemSelection, AnUnknownItemIsToldWithNamesThatAreNear) {
    const std::pair<const char*, const char*> unknown[] = {
        {"Overveiw", "The workbook has no item \"Overveiw\". Did you mean \"Overview\"?"},
        {"Chart 2",
         "The workbook has no item \"Chart 2\". Did you mean \"Chart 1@North\", \"Chart "
         "1@South\"?"},
        {"Weather",
         "The workbook has no item \"Weather\". Run murvane-export --list to see its items."},
        {"Chart 1",
         "\"Chart 1\" is the name of 2 items. Say which one: \"Chart 1@North\", "
         "\"Chart 1@South\"."}};
    for (const auto& [reference, message] : unknown) {
        try {
            static_cast<void>(unattended::findItems(sampleList(), {reference}));
            ADD_FAILURE() << reference;
        } catch (const unattended::UsageError& error) {
            EXPECT_STREQ(error.what(), message);
        }
    }
}

std::string checksOf(const catalogue::ExportList& list) {
    std::string marks;
    for (const auto& row : list.rows) marks += row.checked ? 'x' : '-';
    return marks;
}

TEST(ItemSelection, AllMeansWhatCanBeExportedAndOnlyMeansNoOthers) {
    auto list = sampleList();
    unattended::checkAll(list);
    EXPECT_EQ(checksOf(list), "xxx-x");
    unattended::checkOnly(list, {3, 0});
    EXPECT_EQ(checksOf(list), "x--x-");
}

TEST(ItemSelection, WhatIsOrderedComesFirstAndTheRestFollowsInItsOrder) {
    auto list = sampleList();
    unattended::moveToTop(list, {4, 1});
    Texts names;
    for (const auto& row : list.rows) names.push_back(row.name + "@" + row.sheet);
    EXPECT_EQ(names, (Texts{"{Chart Sheet}@Overview", "Chart 1@South", "Chart 1@North",
                            "Sales, total@North", "Scattered@South"}));
}

}  // namespace

#include <gtest/gtest.h>

#include "apps/murvane_export/captions_csv.h"
#include "apps/murvane_export/errors.h"
#include "rows.h"

namespace {

using unattended::UsageError;

catalogue::ExportList captioned(std::string_view text) {
    catalogue::ExportList list = sampleList();
    unattended::applyCaptions(list, unattended::readCaptions(text, "c.csv"), "c.csv");
    return list;
}

TEST(Captions, ReachTheirItemsByNameAndSheet) {
    const auto list = captioned(
        "item,sheet,caption,slide\n"
        "Chart 1,South,\"Sales, south\", 3 \n"
        "\"Sales, total\",,All of it,\n"
        "Overview,,The whole,2\n");
    EXPECT_EQ(list.rows[1].caption, "Sales, south");
    EXPECT_EQ(list.rows[1].slideNumber, "3");
    EXPECT_EQ(list.rows[2].caption, "All of it");
    EXPECT_EQ(list.rows[4].caption, "The whole");
    EXPECT_EQ(list.rows[0].caption, "");
}

TEST(Captions, ColumnsStandInAnyOrderAndMayBeMissing) {
    EXPECT_EQ(captioned("Caption ,ITEM\nHello,\"Sales, total\"\n").rows[2].caption, "Hello");
}

TEST(Captions, AnEmptyFieldLeavesWhatTheWorkbookHas) {
    catalogue::ExportList list = sampleList();
    list.rows[2].caption = "Kept";
    list.rows[2].slideNumber = "7";
    unattended::applyCaptions(
        list, unattended::readCaptions("item,sheet,caption,slide\n\"Sales, total\",,,\n", "c.csv"),
        "c.csv");
    EXPECT_EQ(list.rows[2].caption, "Kept");
    EXPECT_EQ(list.rows[2].slideNumber, "7");
}

TEST(Captions, AFileThatDoesNotFitIsRefusedWithItsLine) {
    const std::string notUtf8 = "c.csv, line 1: this is not UTF-8. Save the file as \"CSV UTF-8\".";
    const std::pair<const char*, std::string> files[] = {
        {"", "c.csv is empty"},
        {"name,caption\nA,B\n", "unknown column \"name\""},
        {"sheet,caption\nA,B\n", "\"item\" is missing"},
        {"item,caption\nA,B,C\n", "line 2: more fields"},
        {"item,caption\n,B\n", "line 2: the item has no name"},
        {"item,slide\nOverview,two\n", "line 2: the slide \"two\" is not a number"},
        {"item,caption\nOverview,x\nOverwiev,y\n", "line 3: The workbook has no item \"Overwiev\""},
        {"item,caption\nChart 1,x\n", "line 2: \"Chart 1\" is the name of 2 items"},
        {"item,sheet,caption\nChart 1,West,x\n", "no item \"Chart 1@West\""},
        {"item,caption\n\"Over\nview\",\n\n,B\n", "line 5: the item has no name"},
        {"a\n\"b", "c.csv, line 2: a double quote is never closed."},
        {"\"a\"b", "c.csv, line 1: text follows a closing double quote."},
        {"a\nb\nGr\xF6\xDF", "c.csv, line 3: this is not UTF-8."},
        {"a\rb\r\nGr\xF6\xDF", "c.csv, line 3: this is not UTF-8."},
        {"item,caption\r\"Over\rview\",\r,B\r", "line 4: the item has no name"},
        {"\xC0\xAF", notUtf8},
        {"\xED\xA0\x80", notUtf8},
        {"\xE2\x82", notUtf8}};
    for (const auto& [text, saysAtLeast] : files) {
        try {
            captioned(text);
            ADD_FAILURE() << saysAtLeast;
        } catch (const UsageError& error) {
            EXPECT_NE(std::string(error.what()).find(saysAtLeast), std::string::npos)
                << error.what();
        }
    }
}

using Fields = std::vector<std::string>;

TEST(Csv, IsReadAsItIsMeant) {
    const std::tuple<const char*, std::string, std::vector<Fields>> cases[] = {
        {"nothing", "", {}},
        {"lines of all kinds",
         "a,b\nc,d\r\ne,f\rg,h",
         {{"a", "b"}, {"c", "d"}, {"e", "f"}, {"g", "h"}}},
        {"empty fields", ",x,\n", {{"", "x", ""}}},
        {"empty lines", "a\n\n\nb\n,, \n", {{"a"}, {"b"}}},
        {"quotes", "\"a,b\",\"say \"\"so\"\"\"", {{"a,b", "say \"so\""}}},
        {"a line break in quotes", "\"one\ntwo\",x", {{"one\ntwo", "x"}}},
        {"an empty quoted field", "\"\",x", {{"", "x"}}},
        {"a byte-order mark", "\xEF\xBB\xBF\"a\",b", {{"a", "b"}}},
        {"semicolons", "a;b\n1,5;2", {{"a", "b"}, {"1,5", "2"}}},
        {"a semicolon among commas", "a,b;c", {{"a", "b;c"}}},
        {"other scripts", "Größe,売上,😀", {{"Größe", "売上", "😀"}}}};
    for (const auto& [what, text, records] : cases) {
        std::vector<Fields> all;
        for (const auto& record : unattended::parseCsv(text, "file.csv"))
            all.push_back(record.fields);
        EXPECT_EQ(all, records) << what;
    }
}

}  // namespace

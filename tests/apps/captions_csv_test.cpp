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
    const auto list = captioned("Caption ,ITEM\nHello,\"Sales, total\"\n");
    EXPECT_EQ(list.rows[2].caption, "Hello");
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

struct WrongFile {
    const char* text;
    const char* saysAtLeast;
};

TEST(Captions, AFileThatDoesNotFitIsRefusedWithItsLine) {
    for (const WrongFile& wrong :
         {WrongFile{"", "c.csv is empty"},
          {"name,caption\nA,B\n", "unknown column \"name\""},
          {"sheet,caption\nA,B\n", "\"item\" is missing"},
          {"item,caption\nA,B,C\n", "line 2: more fields"},
          {"item,caption\n,B\n", "line 2: the item has no name"},
          {"item,slide\nOverview,two\n", "line 2: the slide \"two\" is not a number"},
          {"item,caption\nOverview,x\nOverwiev,y\n",
           "line 3: The workbook has no item \"Overwiev\""},
          {"item,caption\nChart 1,x\n", "line 2: \"Chart 1\" is the name of 2 items"},
          {"item,sheet,caption\nChart 1,West,x\n", "no item \"Chart 1@West\""}}) {
        try {
            captioned(wrong.text);
            ADD_FAILURE() << wrong.saysAtLeast;
        } catch (const UsageError& error) {
            EXPECT_NE(std::string(error.what()).find(wrong.saysAtLeast), std::string::npos)
                << error.what();
        }
    }
}

}  // namespace

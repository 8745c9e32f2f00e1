#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "apps/murvane_export/item_listing.h"
#include "rows.h"

namespace {

TEST(ItemListing, ColumnsAreAlignedAsATerminalShowsThemAndHostileTextStaysOnItsLine) {
    catalogue::ExportList list = sampleList();
    list.rows.resize(5);
    list.rows[0].name = "Größe";
    list.rows[0].checked = true;
    list.rows[1].caption = "two\nlines\x1b[31m";
    list.rows[2].slideNumber = "12";
    list.rows[2].sheet = "日本";
    list.rows[4] = rowOf("Chart 9", "North", ItemKind::Chart);
    list.rows[4].checked = list.rows[4].isMissing = true;
    EXPECT_EQ(unattended::listAsTable(list),
              "ITEM          SHEET  KIND   EXPORT          SLIDE  CAPTION\n"
              "Größe         North  chart  yes\n"
              "Chart 1       South  chart  no                     two lines [31m\n"
              "Sales, total  日本   range  no              12\n"
              "Scattered     South  range  several areas\n"
              "Chart 9       North  chart  hidden or gone\n");
}

TEST(ItemListing, JsonHoldsEveryItemAsItIs) {
    catalogue::ExportList list = sampleList();
    list.rows[0].caption = "A \"quote\"\nand more";
    list.rows[2].caption = "broken \xFF text";
    const auto document = nlohmann::json::parse(unattended::listAsJson(list, "/books/b.xlsx"));
    EXPECT_EQ(document["workbook"], "/books/b.xlsx");
    ASSERT_EQ(document["items"].size(), 5U);
    EXPECT_EQ(document["items"][0]["caption"], "A \"quote\"\nand more");
    EXPECT_EQ(document["items"][3]["severalAreas"], true);
    EXPECT_EQ(document["items"][3]["missing"], false);
    EXPECT_EQ(document["items"][4]["name"], "{Chart Sheet}");
    EXPECT_EQ(document["items"][4]["sheet"], "Overview");
}

}  // namespace

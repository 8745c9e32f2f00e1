#include <utility>

#include "export_stage.h"
#include "powerpoint/batch_frame.h"

namespace {

using Texts = std::vector<std::string>;
using stage::chartRow;
using stage::chartSheetRow;
using stage::rangeRow;

class BatchTest : public stage::ExportStage {
protected:
    BatchTest() {
        book.sheet("Sales").chart("Chart 1").chart("Chart 2").chart("Chart 3");
        book.sheet("Hidden").chart("Chart 4");
        book.chartSheet("Overview");
        book.define("Total", "=Sales!$A$1:$C$4");
        deck.addSlides(2);
    }

    [[nodiscard]] std::string titleOf(std::int32_t slide) {
        return deck.slide(slide).title().text();
    }
};

TEST_F(BatchTest, NewSlidesFollowTheOldOnesInTheOrderOfTheRows) {
    add(rangeRow("Total", "Sales", "The total"));
    add(chartSheetRow("Overview"));
    add(chartRow("Chart 2", "Sales"));
    exportRows();
    ASSERT_EQ(deck.slideCount(), 5);
    EXPECT_EQ(picturesOn(1), Texts{});
    EXPECT_EQ(picturesOn(3), Texts{"The total"});
    EXPECT_EQ(picturesOn(4), Texts{"Overview"});
    EXPECT_EQ(picturesOn(5), Texts{"Chart 2"});
    EXPECT_EQ(suite.log().texts("Slides.Add"),
              (Texts{"Slides.Add(3, 11)", "Slides.Add(3, 11)", "Slides.Add(3, 11)"}));
    EXPECT_EQ(suite.log().texts("Slides.Item"),
              (Texts{"Slides.Item(3)", "Slides.Item(4)", "Slides.Item(5)"}));
    EXPECT_EQ(list.selected, 2);
    EXPECT_EQ(progress.calls, (Texts{"item 1 of 3", "item 2 of 3", "item 3 of 3", "unload"}));
}

TEST_F(BatchTest, RowsThatAreUncheckedOrOnSheetsHiddenOrGoneTakeNoSlide) {
    book.handle().get("Sheets").get("Item", "Hidden").put("Visible", 0);
    add(chartRow("Chart 4", "Hidden"));
    add(chartRow("Chart 1", "Deleted sheet"));
    add(chartRow("", ""));
    add(chartRow("Chart 2", "Sales"));
    list.rows.back().checked = false;
    add(chartRow("Chart 1", "Sales"));
    exportRows();
    ASSERT_EQ(deck.slideCount(), 3);
    EXPECT_EQ(picturesOn(3), Texts{"Chart 1"});
    EXPECT_EQ(done, 1);
}

TEST_F(BatchTest, PredefinedSlidesTakeWhatNamesThemAndRowsWithoutANumberAreSkipped) {
    choices.predefinedSlides = true;
    options.look = session::PictureLook::Shadow;
    add(chartRow("Chart 1", "Sales", "2"));
    for (const char* slide : {"0", "", "abc", "-1", "0.4"})
        add(chartRow("Chart 2", "Sales", slide));
    add(chartRow("Chart 3", "Sales", "1.6"));
    add(chartRow("Chart 2", "Sales", "0.6"));
    exportRows();
    EXPECT_EQ(deck.slideCount(), 2);
    EXPECT_EQ(picturesOn(2), (Texts{"Chart 1", "Chart 3"}));
    EXPECT_EQ(picturesOn(1), Texts{"Chart 2"});
    for (const std::int32_t slide : {1, 2}) {
        EXPECT_TRUE(deck.slide(slide).shapes().back().hasShadow()) << "each slide is shown first";
    }
    EXPECT_EQ(done, 3);
    EXPECT_TRUE(notices.shown.empty());
}

TEST_F(BatchTest, ASlideBeyondTheEndFailsForTheCallerAndTitlesThatAreThereGiveWayToCaptionsAlone) {
    choices.predefinedSlides = true;
    options.titles = true;
    add(chartRow("Chart 1", "Sales", "3", "North"));
    EXPECT_THROW(exportRows(), office::Failure);
    deck.addSlide(office_double::model::layout::blank);
    EXPECT_NO_THROW(exportRows()) << "no place for a title";
    list.rows[0].slideNumber = "1";
    add(chartRow("Chart 2", "Sales", "1"));
    exportRows();
    EXPECT_EQ(titleOf(1), "North");
}

TEST_F(BatchTest, AMissingRangeGetsItsNoticeAndItsTitleAndMovesNothingElse) {
    options.titles = true;
    options.placesShapes = true;
    options.look = session::PictureLook::Shadow;
    options.shadow = true;
    storePlacement(0.5, 0.25, 0.1);
    add(rangeRow("Nowhere", "Sales", "Lost"));
    add(chartRow("Chart 1", "Sales"));
    exportRows();
    EXPECT_EQ(notices.messages(), Texts{"? Named range 'Nowhere' not found or invalid."});
    EXPECT_EQ(titleOf(3), "Lost");
    EXPECT_NE(deck.slide(3).title().box().left, 96);
    EXPECT_FALSE(deck.slide(3).title().hasShadow());
    EXPECT_EQ(picturesOn(4), Texts{"Chart 1"});
}

TEST_F(BatchTest, TheShadowOptionReplacesTheStyleAfterTheFirstItem) {
    options.look = session::PictureLook::RoundedCorners;
    options.shadow = true;
    add(chartRow("Chart 1", "Sales"));
    add(chartRow("Chart 2", "Sales"));
    exportRows();
    for (const auto& [slide, type] : {std::pair(3, 5), std::pair(4, 1)}) {
        const auto picture = deck.slide(slide).shapes().back();
        EXPECT_EQ(picture.handle().get("AutoShapeType").toLong(), type);
        EXPECT_TRUE(picture.hasShadow());
    }
}

TEST_F(BatchTest, WithASourceLineTheShadowOptionMeetsThatOneAndLaterPictures) {
    const auto shadowsOn = [&](std::int32_t slide) {
        std::string all;
        for (const auto& shape : deck.slide(slide).shapes()) all += shape.hasShadow() ? 'x' : '.';
        return all;
    };
    options.sourceLine = true;
    options.shadow = true;
    add(chartRow("Chart 1", "Sales"));
    add(chartRow("Chart 2", "Sales"));
    exportRows();
    EXPECT_EQ(shadowsOn(3) + shadowsOn(4), "..x.xx");
    options.shadow = false;
    options.look = session::PictureLook::Shadow;
    exportRows();
    EXPECT_EQ(shadowsOn(5), ".x.") << "a style goes to the picture alone";
}

TEST_F(BatchTest, TheUsersPlacementIsUsedOnlyWhenItWasConfirmed) {
    storePlacement(0.5, 0.25, 0.1);
    add(chartRow("Chart 1", "Sales"));
    exportRows();
    EXPECT_NE(deck.slide(3).shapes().back().box().left, 96);
    options.placesShapes = true;
    exportRows();
    EXPECT_DOUBLE_EQ(deck.slide(4).shapes().back().box().left, 96);
    EXPECT_DOUBLE_EQ(deck.slide(4).shapes().back().box().top, 270);
}

TEST_F(BatchTest, ARunningShowEndsAndTheViewIsPutBack) {
    deck.runSlideShow();
    session.PowerPointApp.get("ActiveWindow").put("ViewType", 7);
    add(chartRow("Chart 1", "Sales"));
    exportRows();
    EXPECT_FALSE(deck.showsSlides());
    EXPECT_EQ(session.PowerPointApp.get("ActiveWindow").get("ViewType").toLong(), 7);
    EXPECT_EQ(session.ExcelApp.get("WindowState").toLong(), -4137);
    EXPECT_TRUE(excelDraws());
}

TEST_F(BatchTest, FollowsItsSlidesWhereTheUserAddsAndDeletesOthersMeanwhile) {
    for (const char* name : {"Chart 1", "Chart 2", "Chart 3"}) add(chartRow(name, "Sales"));
    const auto slides = deck.handle().get("Slides");
    bool isAdded = false;
    host.onEvents = [&] {
        if (progress.calls.size() == 2 && !std::exchange(isAdded, true)) slides.call("Add", 1, 11);
        progress.isCancelled = progress.calls.size() == 2;
    };
    const auto before = deck.slideCount();
    exportRows();
    ASSERT_EQ(deck.slideCount(), before + 3) << "the user's and two of the batch";
    EXPECT_TRUE(picturesOn(1).empty());
    EXPECT_EQ(picturesOn(before + 2), Texts{"Chart 1"});
    EXPECT_EQ(picturesOn(before + 3), Texts{"Chart 2"});
}

TEST_F(BatchTest, ACancelledBatchEndsAfterTheItemAtHandAndLeavesNoEmptySlides) {
    add(rangeRow("Nowhere", "Sales"));
    for (const char* name : {"Chart 2", "Chart 3"}) add(chartRow(name, "Sales"));
    host.onEvents = [this] { progress.isCancelled = progress.calls.size() == 2; };
    exportRows();
    ASSERT_EQ(deck.slideCount(), 4);
    EXPECT_EQ(picturesOn(3), Texts{});
    EXPECT_EQ(picturesOn(4), Texts{"Chart 2"});
    EXPECT_EQ(notices.messages().back(), "The export was cancelled: 1 of 3 items were exported.");
    EXPECT_TRUE(excelDraws());
    EXPECT_EQ(progress.calls.back(), "unload");
}

TEST_F(BatchTest, ASlideThatCannotBeDeletedKeepsNothingFromBeingPutBackAfterCancel) {
    add(chartRow("Chart 1", "Sales"));
    for (const char* name : {"Chart 2", "Chart 3"}) add(chartRow(name, "Sales"));
    host.onEvents = [this] { progress.isCancelled = !progress.calls.empty(); };
    suite.failures().fail("Slide.Delete");
    const auto before = deck.slideCount();
    EXPECT_NO_THROW(exportRows());
    EXPECT_EQ(deck.slideCount(), before + 2) << "of two slides without an item one could not go";
    EXPECT_EQ(notices.messages().back(), "The export was cancelled: 1 of 3 items were exported.");
    EXPECT_TRUE(excelDraws());
}

}  // namespace

#include "export_stage.h"

namespace {

using stage::chartRow;

class BatchFailuresTest : public stage::ExportStage {
protected:
    BatchFailuresTest() {
        book.sheet("Sales").chart("Chart 1").chart("Chart 2").chart("Chart 3");
        deck.addSlides(1);
        for (const char* name : {"Chart 1", "Chart 2", "Chart 3"}) add(chartRow(name, "Sales"));
    }
};

TEST_F(BatchFailuresTest, AFailureInTheLoopReachesTheCallerAndNothingIsTakenBack) {
    suite.failures().fail("Chart.Export", 2);
    EXPECT_THROW(exportRows(), office::Failure);
    EXPECT_EQ(deck.slideCount(), 4);
    EXPECT_EQ(picturesOn(2).size(), 1U);
    EXPECT_EQ(picturesOn(3).size(), 0U);
    EXPECT_FALSE(excelDraws());
    EXPECT_EQ(session.ExcelApp.get("WindowState").toLong(), -4143);
    EXPECT_EQ(list.selected, 1);
    EXPECT_NE(progress.calls.back(), "unload");
}

TEST_F(BatchFailuresTest, AFailedItemIsToldAndTheOthersGoOnWhereTheCallerAsks) {
    suite.failures().fail("Chart.Export", 2);
    std::vector<std::string> failed;
    powerpoint::Batch batch{session, list, choices, {}};
    batch.onFailedItem = [&](const catalogue::ExportItem& row, const office::Failure& failure) {
        failed.push_back(row.name + ": " + failure.source());
    };
    EXPECT_EQ(powerpoint::ExportRows(batch), 3);
    EXPECT_EQ(failed, std::vector<std::string>{"Chart 2: Chart.Export"});
    EXPECT_EQ(picturesOn(3).size(), 0U);
    EXPECT_EQ(picturesOn(4).size(), 1U);
    suite.failures().fail("Chart.Export", 2, office::FailureNumber::PathFileAccess);
    EXPECT_THROW(powerpoint::ExportRows(batch), office::Failure) << "the disk is full for all";
    EXPECT_EQ(failed.size(), 1U);
}

TEST_F(BatchFailuresTest, AWorkbookThatIsClosedMeanwhileIsNotTakenForHiddenSheets) {
    session.ActiveBook.call("Close", false);
    EXPECT_THROW(exportRows(), office::Failure);
}

TEST_F(BatchFailuresTest, AWorkbookThatIsClosedInTheMiddleBringsUpOneNoticeOfItsRanges) {
    for (const char* name : {"Prices", "Costs"}) add(stage::rangeRow(name, "Sales"));
    host.onEvents = [&] {
        if (progress.calls.back() == "item 3 of 5") session.ActiveBook.call("Close", false);
    };
    int failed = 0;
    powerpoint::Batch batch{session, list, choices, {}};
    batch.onFailedItem = [&](const auto&, const auto&) { ++failed; };
    powerpoint::ExportRows(batch);
    EXPECT_EQ(failed, 2);
    EXPECT_EQ(notices.messages().size(), 1U);
}

TEST_F(BatchFailuresTest, AFileStaysWhereItCannotBeDeletedOrAFailureFollows) {
    suite.failures().fail("Shapes.AddPicture", 2);
    EXPECT_THROW(exportRows(), office::Failure);
    EXPECT_EQ(host.filesLeft(), std::set<std::string>{"EmbeddedChart_Chart 2.png"});
    host.deletesFiles = false;
    EXPECT_NO_THROW(exportRows());
    EXPECT_EQ(host.filesLeft().size(), 3U);
}

/// A stage of its own for each of several failures.
struct Fresh : BatchFailuresTest {
    using BatchFailuresTest::exportRows;
    using BatchFailuresTest::options;
    using BatchFailuresTest::session;
    using BatchFailuresTest::suite;
    void TestBody() override {}
};

TEST(BatchFailures, OfTheHeadAndTheLoopReachTheCaller) {
    for (const char* member : {"Presentation.Slides", "Slides.Add", "Application.WindowState",
                               "Application.ScreenUpdating", "View.GotoSlide", "Shapes.AddPicture",
                               "Shape.Left", "TextRange.Text", "Selection.Unselect"}) {
        Fresh fresh;
        fresh.options.titles = true;
        fresh.suite.failures().fail(member);
        EXPECT_THROW(fresh.exportRows(), office::Failure) << member;
    }
}

TEST(BatchFailures, DoNotKeepTheRestFromBeingPutBack) {
    Fresh fresh;
    const auto window = fresh.session.PowerPointApp.get("ActiveWindow").toObject();
    window.put("ViewType", 7);
    fresh.suite.failures().fail("Application.WindowState", 2);
    EXPECT_NO_THROW(fresh.exportRows());
    EXPECT_EQ(window.get("ViewType").toLong(), 7);
}

TEST_F(BatchFailuresTest, AViewThatStaysIsPassedOverAndAPictureThatFailsLateIsTold) {
    // It is read ahead of the batch.
    constexpr int putBack = 2;
    suite.failures().fail("DocumentWindow.ViewType", putBack);
    EXPECT_NO_THROW(exportRows());
    suite.failures().failAfter("Shapes.AddPicture", "DocumentWindow.ViewType", putBack);
    EXPECT_THROW(exportRows(), office::Failure);
    EXPECT_EQ(list.selected, -1) << "nobody can say whose it is";
    EXPECT_EQ(progress.calls.back(), "unload");
}

}  // namespace

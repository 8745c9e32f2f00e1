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
    EXPECT_EQ(deck.slides().size(), 4U);
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
    EXPECT_EQ(powerpoint::ExportRowsAsPictures(batch), 3);
    EXPECT_EQ(failed, std::vector<std::string>{"Chart 2: Chart.Export"});
    EXPECT_EQ(picturesOn(3).size(), 0U);
    EXPECT_EQ(picturesOn(4).size(), 1U);
}

TEST_F(BatchFailuresTest, AWorkbookThatIsClosedMeanwhileIsNotTakenForHiddenSheets) {
    session.ActiveBook.call("Close", false);
    EXPECT_THROW(exportRows(), office::Failure);
}

TEST_F(BatchFailuresTest, AFailureAfterTheExportLeavesItsFile) {
    suite.failures().fail("Shapes.AddPicture", 2);
    EXPECT_THROW(exportRows(), office::Failure);
    EXPECT_EQ(host.filesLeft(), std::set<std::string>{"EmbeddedChart_Chart 2.png"});
}

TEST_F(BatchFailuresTest, AFileThatCannotBeDeletedIsNoFailure) {
    class StubbornHost : public stage::DiskHost {
        void deleteFile(std::string_view) override {
            throw office::Failure(office::FailureNumber::PermissionDenied, "Host", "No");
        }
    };
    StubbornHost stubborn;
    session::OfficeSession other{suite, stubborn, notices, progress};
    other.ExcelApp = session.ExcelApp;
    other.ActiveBook = session.ActiveBook;
    other.PowerPointApp = session.PowerPointApp;
    other.SessionPresentation = session.SessionPresentation;
    powerpoint::Batch batch{other, list, choices, {}};
    EXPECT_NO_THROW(powerpoint::ExportRowsAsPictures(batch));
    EXPECT_EQ(stubborn.filesLeft().size(), 3U);
}

/// In the head and in the loop, each of these ends the batch.
class UnhandledFailureTest : public BatchFailuresTest,
                             public testing::WithParamInterface<const char*> {};

TEST_P(UnhandledFailureTest, ReachesTheCaller) {
    options.titles = true;
    suite.failures().fail(GetParam());
    EXPECT_THROW(exportRows(), office::Failure) << GetParam();
}

INSTANTIATE_TEST_SUITE_P(Members, UnhandledFailureTest,
                         testing::Values("Presentation.Slides", "Slides.Add",
                                         "Application.WindowState", "Application.ScreenUpdating",
                                         "View.GotoSlide", "Shapes.AddPicture", "Shape.Left",
                                         "TextRange.Text", "Selection.Unselect"));

/// What puts things back ignores failures, one by one.
class TailFailureTest : public BatchFailuresTest,
                        public testing::WithParamInterface<const char*> {};

TEST_P(TailFailureTest, DoesNotKeepTheRestFromBeingPutBack) {
    session.PowerPointApp.get("ActiveWindow").put("ViewType", 7);
    suite.failures().fail(GetParam(), GetParam() == std::string("Application.WindowState") ? 2 : 1);
    EXPECT_NO_THROW(exportRows());
    EXPECT_EQ(session.PowerPointApp.get("ActiveWindow").get("ViewType").toLong(), 7);
}

INSTANTIATE_TEST_SUITE_P(Members, TailFailureTest,
                         testing::Values("Application.WindowState", "Application.Rows",
                                         "Range.EntireRow"));

TEST_F(BatchFailuresTest, ALostSuitePassesThroughWhereverItHappens) {
    exportRows();
    const int calls = static_cast<int>(suite.log().count());
    ASSERT_GT(calls, 50);
    for (int at = 1; at <= calls; at += 7) {
        office_double::DoubleSuite fresh;
        auto& workbook = fresh.excel().addWorkbook("Book1.xlsx");
        workbook.sheet("Sales").chart("Chart 1").chart("Chart 2").chart("Chart 3");
        auto& presentation = fresh.powerPoint().addPresentation("Deck.pptx").addSlides(1);
        session::OfficeSession lost{fresh, host, notices, progress};
        lost.ExcelApp = fresh.attach("Excel.Application");
        lost.ActiveBook = workbook.handle();
        lost.PowerPointApp = fresh.attach("PowerPoint.Application");
        lost.SessionPresentation = presentation.handle();
        powerpoint::Batch batch{lost, list, choices, {}};
        fresh.failures().loseSuiteAt(at);
        EXPECT_THROW(powerpoint::ExportRowsAsPictures(batch), office::SuiteLost) << at;
    }
}

}  // namespace

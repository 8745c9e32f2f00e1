#include "export_stage.h"
#include "powerpoint/progress.h"

namespace {

using Calls = std::vector<std::string>;

class ProgressTest : public stage::ExportStage {
protected:
    void step(int times) {
        for (int i = 0; i < times; ++i) powerpoint::ProgressStep(session, forms);
    }

    session::FormHooks forms;
};

TEST_F(ProgressTest, AStepShowsTheShareDoneAndLetsEventsRun) {
    session.CheckedCount = 3;
    step(1);
    EXPECT_EQ(progress.calls, (Calls{"total 3", "value 33 33%", "current 1", "show"}));
    EXPECT_EQ(host.pumps, 1);
}

TEST_F(ProgressTest, TheBarRestsWhileItsPercentageIsTheNumberOfItems) {
    // 50 % of 50 items comes at the 25th; the bar then stays there.
    session.CheckedCount = 50;
    step(26);
    EXPECT_EQ(progress.calls.back(), "show");
    EXPECT_EQ(progress.calls[progress.calls.size() - 2], "redraw");
    EXPECT_EQ(progress.value(), 50);
    EXPECT_EQ(session.ProgressCount, 26);
}

TEST_F(ProgressTest, NothingToDoDividesByNothing) {
    step(2);
    EXPECT_EQ(progress.value(), 0);
}

TEST_F(ProgressTest, TheFirstStepUnloadsTheDialogsThatLedHere) {
    Calls unloaded;
    forms.UnloadForm = [&](std::string_view form) { unloaded.emplace_back(form); };
    session.CheckedCount = 1;
    step(1);
    EXPECT_EQ(unloaded, (Calls{"Dialog", "DialogWord", "DialogPDF", "DialogHTML"}));
    unloaded.clear();
    session.ExportKeepsDialogs = true;
    step(1);
    EXPECT_TRUE(unloaded.empty());
}

TEST_F(ProgressTest, TheEndFillsTheBarIfThereWasAnythingToDo) {
    powerpoint::ProgressFinish(session);
    EXPECT_TRUE(progress.calls.empty());
    session.CheckedCount = 4;
    session.ProgressCount = 2;
    powerpoint::ProgressFinish(session);
    EXPECT_EQ(progress.calls, (Calls{"total 4", "current 4", "show", "value 100 100%"}));
    EXPECT_EQ(session.ProgressCount, 4);
}

TEST_F(ProgressTest, ScreenUpdatingComesBackThoughPowerPointHasNone) {
    session.ExcelApp.put("ScreenUpdating", false);
    powerpoint::RestoreScreenUpdating(session);
    EXPECT_TRUE(excelDraws());
    EXPECT_EQ(suite.log().count("ScreenUpdating", support::CallKind::Put), 3U);
    EXPECT_EQ(host.pumps, 1);
}

}  // namespace

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "command_recorder.h"
#include "session/launcher.h"
#include "session/workbook_store.h"
#include "session_doubles/test_session.h"

namespace {

using session_doubles::TestSession;
using session_tests::CommandRecorder;
using Words = std::vector<std::string>;

class MainForm : public testing::Test {
protected:
    TestSession test;
    CommandRecorder recorder{test.session};
    office_double::Workbook& book = test.suite.excel().addWorkbook("Book1.xlsx");

    MainForm() { book.sheet("Sales").chart("Chart 1"); }

    int run() { return session::Main(test.session, "/112", recorder.handlers); }
    [[nodiscard]] bool formWasShown() const {
        return std::count(recorder.ran.begin(), recorder.ran.end(), "main form") > 0;
    }
};

TEST_F(MainForm, IsShownOnceTheWorkbookHasItsStoreAndKeepsTheCommandRunning) {
    int pumpsUntilClosed = 3;
    recorder.handlers.ShowMainForm = [&] {
        recorder.ran.emplace_back("main form");
        EXPECT_TRUE(session::SheetExists(test.session, session::store::sheetName));
        test.host.pumps = 0;
    };
    test.host.onEvents = [&] {
        if (formWasShown() && --pumpsUntilClosed == 0) test.session.MainFormOpen = false;
    };
    EXPECT_EQ(run(), 0);
    EXPECT_TRUE(formWasShown());
    EXPECT_EQ(test.host.pumps, 3);
}

TEST_F(MainForm, LeavesAWorkbookWithoutItemsAlone) {
    recorder.itemsToCount = 0;
    run();
    EXPECT_FALSE(formWasShown());
    EXPECT_EQ(book.findTab(session::store::sheetName), nullptr);
    EXPECT_EQ(test.notices.messages(),
              Words{"Murvane didn't find any chart ot named range to paste from the current "
                    "workbook!\r\rPlease open another workbook or create at least one chart or "
                    "named range in the current one in order to open Murvane main form in batch "
                    "mode"});
}

TEST_F(MainForm, RefusesAWorkbookThatCannotTakeAStoreAndSaysWhatToDo) {
    book.protectStructure();
    run();
    EXPECT_EQ(test.notices.shown.back().kind, "warning");
    book.readOnly();
    run();
    EXPECT_FALSE(formWasShown());
    EXPECT_EQ(book.findTab(session::store::sheetName), nullptr);
    EXPECT_EQ(test.notices.messages(),
              (Words{"              The workbook looks protected\r\r"
                     "Please remove the protection and reopen Murvane\r"
                     "After that you may reprotect the workbook.\r"
                     "The message will not longer appear",
                     "The workbook is read-only, and Murvane keeps its list in the workbook.\r"
                     "Open it for editing or save it under another name,\rthen reopen Murvane."}));
}

TEST_F(MainForm, OpensForAProtectedWorkbookThatHasItsStore) {
    book.sheet(session::store::sheetName).veryHide();
    book.protectStructure();
    run();
    EXPECT_TRUE(formWasShown() && test.notices.shown.empty());
}

TEST(MainFormWithoutWorkbook, OffersToOpenOneAndEndsThere) {
    for (const int answer : {session::answer::ok, session::answer::cancel}) {
        TestSession test;
        CommandRecorder recorder{test.session};
        test.suite.excel().addFile("/documents/Budget.xlsx", [](office_double::Workbook& opened) {
            opened.sheet("Sales").chart("Chart 1");
        });
        test.suite.excel().answerOpenPrompt("/documents/Budget.xlsx");
        test.notices.answers = {answer};
        session::Main(test.session, "/112", recorder.handlers);
        EXPECT_EQ(test.notices.messages(),
                  Words{"Murvane didn't found an open Excel file \r\rWould you want to open one?"});
        EXPECT_EQ(test.notices.shown.front().buttons, 33);
        EXPECT_EQ(test.suite.excel().findOpen("Budget.xlsx") != nullptr,
                  answer == session::answer::ok);
        EXPECT_EQ(recorder.ran, Words{"unload all"});
    }
}

}  // namespace

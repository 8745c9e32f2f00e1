#include <gtest/gtest.h>

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
        for (const std::string& step : recorder.ran) {
            if (step == "main form") return true;
        }
        return false;
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

TEST_F(MainForm, RefusesAProtectedWorkbookThatHasNoStore) {
    book.protectStructure();
    run();
    EXPECT_FALSE(formWasShown());
    ASSERT_EQ(test.notices.shown.size(), 1U);
    EXPECT_EQ(test.notices.shown.front().kind, "warning");
    EXPECT_EQ(test.notices.shown.front().message,
              "              The workbook looks protected\r\r"
              "Please remove the protection and reopen Murvane\r"
              "After that you may reprotect the workbook.\r"
              "The message will not longer appear");
}

TEST_F(MainForm, OpensForAProtectedWorkbookThatHasItsStore) {
    book.sheet(session::store::sheetName).veryHide();
    book.protectStructure();
    run();
    EXPECT_TRUE(formWasShown());
    EXPECT_TRUE(test.notices.shown.empty());
}

TEST_F(MainForm, RefusesAReadOnlyWorkbookAndSaysWhatToDo) {
    book.readOnly();
    run();
    EXPECT_FALSE(formWasShown());
    EXPECT_EQ(test.notices.messages(),
              Words{"The workbook is read-only, and Murvane keeps its list in the workbook.\r"
                    "Open it for editing or save it under another name,\rthen reopen Murvane."});
    EXPECT_EQ(book.findTab(session::store::sheetName), nullptr);
}

class MainFormWithoutWorkbook : public testing::Test {
protected:
    TestSession test;
    CommandRecorder recorder{test.session};

    void runAnswering(int answer) {
        test.suite.excel().addFile("/documents/Budget.xlsx", [](office_double::Workbook& opened) {
            opened.sheet("Sales").chart("Chart 1");
        });
        test.suite.excel().answerOpenPrompt("/documents/Budget.xlsx");
        test.notices.answers = {answer};
        session::Main(test.session, "/112", recorder.handlers);
    }
};

TEST_F(MainFormWithoutWorkbook, OffersToOpenOneAndEndsThere) {
    runAnswering(session::answer::ok);
    ASSERT_EQ(test.notices.shown.size(), 1U);
    EXPECT_EQ(test.notices.shown.front().message,
              "Murvane didn't found an open Excel file \r\rWould you want to open one?");
    EXPECT_EQ(test.notices.shown.front().buttons, 33);
    EXPECT_NE(test.suite.excel().findOpen("Budget.xlsx"), nullptr);
    EXPECT_EQ(recorder.ran, Words{"unload all"});
}

TEST_F(MainFormWithoutWorkbook, OpensNothingWhenTheOfferIsDeclined) {
    runAnswering(session::answer::cancel);
    EXPECT_EQ(test.suite.excel().findOpen("Budget.xlsx"), nullptr);
    EXPECT_EQ(recorder.ran, Words{"unload all"});
}

}  // namespace

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "office/failure.h"
#include "session/launcher.h"
#include "session/store_sheet.h"
#include "session_doubles/test_session.h"
#include "support/automation.h"

namespace {

using session_doubles::TestSession;
using Words = std::vector<std::string>;

/// Handlers of all commands; each notes that it ran. The main form closes at once.
struct CommandRecorder {
    explicit CommandRecorder(session::OfficeSession& theSession) : session(theSession) {
        handlers.CountWorkbookItems = [this] {
            ran.emplace_back("count");
            session.ItemCount = itemsToCount;
        };
        handlers.ShowAboutForm = [this] { ran.emplace_back("about"); };
        handlers.ShowLayoutUtility = [this] { ran.emplace_back("layout"); };
        handlers.ShowMainForm = [this] { ran.emplace_back("main form"); };
        handlers.PasteSelectionToSlide = [this](session::SlidePaste mode) {
            ran.push_back("slide " + std::to_string(static_cast<int>(mode)));
        };
        handlers.PasteSelectionToWord = [this](session::WordPaste mode) {
            ran.push_back("word " + std::to_string(static_cast<int>(mode)));
        };
        handlers.SaveSelectionAsImage = [this] { ran.emplace_back("image"); };
        handlers.UnloadAllForms = [this] { ran.emplace_back("unload all"); };
    }

    session::OfficeSession& session;
    session::CommandHandlers handlers;
    std::vector<std::string> ran;
    std::int16_t itemsToCount = 1;
};

class Launcher : public testing::Test {
protected:
    TestSession test;
    CommandRecorder recorder{test.session};

    int run(const std::string& commandLine) {
        recorder.ran.clear();
        return session::Main(test.session, commandLine, recorder.handlers);
    }

    office_double::Workbook& openWorkbook() {
        auto& book = test.suite.excel().addWorkbook("Book1.xlsx");
        book.sheet("Sales");
        return book;
    }
};

TEST_F(Launcher, RunsTheHandlerOfEachCodeAndLeavesThroughTheOneWayOut) {
    openWorkbook();
    run(" ");
    EXPECT_EQ(test.suite.log().count(), 0U);
    const std::pair<std::string, Words> cases[] = {
        {"", {}},
        {"   ", {}},
        {"/004", {"about"}},
        {"/006", {"layout"}},
        {"/112", {"count", "main form"}},
        {"  /112 ", {"count", "main form"}},
        {"/212", {"slide 0"}},
        {"/312", {"slide 1"}},
        {"/3122", {"slide 2"}},
        {"/412", {"slide 3"}},
        {"/512", {"word 0"}},
        {"/612", {"word 1"}},
        {"/712", {"word 2"}},
        {"/812", {"word 3"}},
        {"/111", {"image"}},
        {"/112 more", {}},
        {"/1122", {}},
        {"/11", {}},
    };
    for (const auto& [commandLine, ran] : cases) {
        Words expected = ran;
        expected.emplace_back("unload all");
        EXPECT_EQ(run(commandLine), 0) << commandLine;
        EXPECT_EQ(recorder.ran, expected) << commandLine;
    }
    EXPECT_TRUE(test.notices.shown.empty());
}

TEST_F(Launcher, OpensTheWebPagesWithoutAnyApplication) {
    test.host.variables["MURVANE_CONTACT_URL"] = "https://intranet/who#murvane";
    for (const char* code : {"/001", "/002", "/003"}) run(code);
    EXPECT_EQ(test.host.links,
              (Words{"file:///program/help/overview.html", "file:///program/help/faq.html",
                     "https://intranet/who#murvane"}));
    EXPECT_TRUE(test.notices.shown.empty());
    test.host.opensFiles = false;
    run("/003");
    ASSERT_EQ(test.notices.shown.size(), 1U) << "no browser";
    EXPECT_NE(test.notices.shown[0].message.find("\rhttps://intranet/who#murvane"),
              std::string::npos);
}

TEST_F(Launcher, EndsWithoutAWordWhereExcelIsMissing) {
    for (const char* code : {"/112", "/212", "/512", "/111"}) {
        EXPECT_EQ(run(code), 0) << code;
        EXPECT_EQ(recorder.ran, Words{"unload all"}) << code;
    }
    run("/006");
    EXPECT_EQ(recorder.ran, (Words{"layout", "unload all"}));
    test.suite.excel();
    EXPECT_EQ(run("/212"), 0) << "no workbook";
    EXPECT_EQ(recorder.ran, Words{"unload all"});
    EXPECT_TRUE(test.notices.shown.empty());
}

TEST_F(Launcher, GoesOnWithoutWhatItCannotRead) {
    openWorkbook();
    test.suite.powerPoint();
    test.suite.failures().failAlways("Application.ActivePresentation");
    test.suite.failures().failAlways("Workbook.ActiveSheet");
    EXPECT_EQ(run("/212"), 0);
    EXPECT_EQ(recorder.ran.at(0), "slide 0");
}

TEST_F(Launcher, FailsWithoutClosingForTheCodeThatHasNoForm) {
    openWorkbook();
    EXPECT_EQ(support::failureOf([&] { run("/922"); }), 91);
    EXPECT_TRUE(recorder.ran.empty());
    EXPECT_TRUE(test.session.ExcelApp);
}

TEST_F(Launcher, SaysTrulyWhyACommandHasNoHandlerAndFails) {
    openWorkbook();
    recorder.handlers.ShowAboutForm = nullptr;
    recorder.handlers.ShowLayoutUtility = nullptr;
    recorder.handlers.ShowMainForm = nullptr;
    for (const char* code : {"/004", "/006", "/112"}) EXPECT_EQ(run(code), 1) << code;
    const auto noScreen = [](const std::string& code) {
        return "The command " + code + " opens a window, and there is no screen to show it on.";
    };
    EXPECT_EQ(test.notices.messages(),
              (Words{noScreen("/004"), noScreen("/006"), noScreen("/112")}));
}

TEST_F(Launcher, SaysWhyAnExcelThatRunsCannotBeHad) {
    openWorkbook();
    test.suite.failures().failAlways("Application.ActiveWorkbook");
    for (const char* code : {"/006", "/112", "/212"}) {
        test.notices.shown.clear();
        EXPECT_EQ(run(code), 1) << code;
        EXPECT_EQ(test.notices.shown.size(), 1U) << code;
        EXPECT_EQ(recorder.ran, Words{"unload all"}) << code;
    }
    EXPECT_EQ(run("/004"), 0);
}

TEST_F(Launcher, RefusesAnEmbeddedPasteOfCellsUnderAChart) {
    // The chart of the double covers columns C to G and rows 3 to 12.
    openWorkbook().sheet("Sales").chart("Chart 1");
    const std::pair<std::string, bool> cases[] = {
        {"C3", true}, {"A1:C4", true}, {"A1:B2", false}, {"J9", false}};
    for (const auto& [selection, refused] : cases) {
        test.suite.excel().selectRange(selection);
        test.notices.shown.clear();
        run("/3122");
        EXPECT_EQ(test.notices.messages(),
                  refused ? Words{"The specified range contains embedded charts. Please export "
                                  "in another format."}
                          : Words{})
            << selection;
        EXPECT_EQ(recorder.ran.size(), refused ? 1U : 2U) << selection;
    }
    test.suite.excel().selectRange("C3");
    run("/312");
    EXPECT_EQ(recorder.ran.at(0), "slide 1");
    test.suite.excel().addWorkbook("Book2.xlsx").chartSheet("Overview");
    run("/3122");
    EXPECT_EQ(recorder.ran.at(0), "slide 2");
}

class MainForm : public Launcher {
protected:
    office_double::Workbook& book = openWorkbook();

    [[nodiscard]] bool formWasShown() const {
        return std::count(recorder.ran.begin(), recorder.ran.end(), "main form") > 0;
    }
};

TEST_F(MainForm, IsShownOnceTheWorkbookHasItsStore) {
    recorder.handlers.ShowMainForm = [&] {
        recorder.ran.emplace_back("main form");
        EXPECT_TRUE(session::SheetExists(test.session, session::store::sheetName));
    };
    EXPECT_EQ(run("/112"), 0);
    EXPECT_TRUE(formWasShown());
}

TEST_F(MainForm, LeavesAWorkbookWithoutItemsAlone) {
    recorder.itemsToCount = 0;
    run("/112");
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
    run("/112");
    EXPECT_EQ(test.notices.shown.back().kind, "warning");
    book.readOnly();
    run("/112");
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
    run("/112");
    EXPECT_TRUE(formWasShown() && test.notices.shown.empty());
}

TEST_F(Launcher, OffersToOpenAWorkbookForTheMainFormAndEndsThere) {
    test.suite.excel().addFile("/documents/Budget.xlsx", [](auto&) {});
    test.suite.excel().answerOpenPrompt("/documents/Budget.xlsx");
    for (const int answer : {session::answer::cancel, session::answer::ok}) {
        test.notices.shown.clear();
        test.notices.answers = {answer};
        run("/112");
        EXPECT_EQ(test.notices.messages(),
                  Words{"Murvane didn't found an open Excel file \r\rWould you want to open one?"});
        EXPECT_EQ(test.notices.shown.front().buttons, 33);
        EXPECT_EQ(test.suite.excel().findOpen("Budget.xlsx") != nullptr,
                  answer == session::answer::ok);
        EXPECT_EQ(recorder.ran, Words{"unload all"});
    }
}

TEST(Closing, LetsGoOfEverythingAndEndsNoApplication) {
    session_doubles::TestSession test;
    test.suite.excel().addWorkbook("Book1.xlsx").sheet("Sales");
    test.suite.powerPoint().addPresentation("Deck.pptx");
    test.attach();
    test.session.SessionPresentation =
        test.session.PowerPointApp.get("ActivePresentation").toObject();
    int unloaded = 0;
    session::CloseSession(test.session, [&] {
        ++unloaded;
        throw office::Failure(5, "Form", "no");
    });
    EXPECT_FALSE(test.session.ActiveBook || test.session.SessionPresentation ||
                 test.session.ExcelApp || test.session.PowerPointApp);
    EXPECT_EQ(unloaded, 1);
    EXPECT_EQ(test.suite.log().count("Quit") + test.suite.log().count("Close"), 0U);
}

}  // namespace

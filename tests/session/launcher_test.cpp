#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "command_recorder.h"
#include "office/failure.h"
#include "session/launcher.h"
#include "session/web_pages.h"
#include "session_doubles/test_session.h"

namespace {

using session_doubles::TestSession;
using session_tests::CommandRecorder;
using Words = std::vector<std::string>;

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
        {"/212", {"count", "slide 0"}},
        {"/312", {"count", "slide 1"}},
        {"/3122", {"count", "slide 2"}},
        {"/412", {"count", "slide 3"}},
        {"/512", {"count", "word 0"}},
        {"/612", {"count", "word 1"}},
        {"/712", {"count", "word 2"}},
        {"/812", {"count", "word 3"}},
        {"/111", {"count", "image"}},
        {"/112 more", {"count"}},
        {"/1122", {"count"}},
        {"/11", {"count"}},
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
    run("/001");
    run("/002");
    run("/003");
    EXPECT_EQ(test.host.links, (Words{std::string(session::address::docOverview),
                                      std::string(session::address::docOverview) + "#faqs",
                                      std::string(session::address::contact)}));
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
    EXPECT_EQ(recorder.ran.at(1), "slide 0");
}

TEST_F(Launcher, FailsWithoutClosingForTheCodeThatHasNoForm) {
    openWorkbook();
    try {
        run("/922");
        FAIL() << "the failure must reach the program";
    } catch (const office::Failure& failure) {
        EXPECT_TRUE(failure.is(office::FailureNumber::ObjectNotSet));
    }
    EXPECT_TRUE(recorder.ran.empty());
    EXPECT_TRUE(test.session.ExcelApp);
}

TEST_F(Launcher, SaysTrulyWhyACommandHasNoHandlerAndFails) {
    openWorkbook();
    recorder.handlers.PasteSelectionToWord = nullptr;
    recorder.handlers.ShowAboutForm = nullptr;
    recorder.handlers.ShowLayoutUtility = nullptr;
    recorder.handlers.ShowMainForm = nullptr;
    EXPECT_EQ(run("/712"), 1);
    EXPECT_EQ(recorder.ran, (Words{"count", "unload all"}));
    for (const char* code : {"/004", "/006", "/112"}) EXPECT_EQ(run(code), 1) << code;
    const auto noScreen = [](const std::string& code) {
        return "The command " + code + " opens a window, and there is no screen to show it on.";
    };
    EXPECT_EQ(test.notices.messages(),
              (Words{"This version of Murvane does not have the command /712 yet.",
                     noScreen("/004"), noScreen("/006"), noScreen("/112")}));
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
        EXPECT_EQ(recorder.ran.size(), refused ? 2U : 3U) << selection;
    }
    test.suite.excel().selectRange("C3");
    run("/312");
    EXPECT_EQ(recorder.ran.at(1), "slide 1");
    test.suite.excel().addWorkbook("Book2.xlsx").chartSheet("Overview");
    run("/3122");
    EXPECT_EQ(recorder.ran.at(1), "slide 2");
}

TEST(Closing, LetsGoOfEverythingAndEndsNoApplication) {
    session_doubles::TestSession test;
    test.suite.excel().addWorkbook("Book1.xlsx").sheet("Sales");
    test.suite.powerPoint().addPresentation("Deck.pptx");
    test.attach();
    test.session.SessionPresentation =
        test.session.PowerPointApp.get("ActivePresentation").toObject();
    test.session.MainFormOpen = true;
    int unloaded = 0;
    session::CloseSession(test.session, [&] {
        ++unloaded;
        throw office::Failure(5, "Form", "no");
    });
    EXPECT_FALSE(test.session.MainFormOpen);
    EXPECT_FALSE(test.session.ActiveBook || test.session.SessionPresentation ||
                 test.session.ExcelApp || test.session.PowerPointApp);
    EXPECT_EQ(unloaded, 1);
    EXPECT_EQ(test.suite.log().count("Quit") + test.suite.log().count("Close"), 0U);
}

}  // namespace

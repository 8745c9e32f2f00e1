#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <thread>

#include "apps/interruption.h"
#include "apps/posix_console.h"
#include "apps/terminal.h"
#include "scripted_console.h"

namespace {

using apps::Answering;
namespace answer = session::answer;

TEST(StatusLine, WritesOverItselfOnATerminalAndNothingElsewhere) {
    ScriptedConsole console;
    apps::StatusLine(console, true).show("one");
    console.isTerminal = true;
    apps::StatusLine(console, false).show("one");
    EXPECT_EQ(console.error, "");
    {
        apps::StatusLine line(console, true);
        line.show("one");
        line.clear();
        line.clear();
        line.show("two");
    }
    EXPECT_EQ(console.error, "\rone\x1b[K\r\x1b[K\rtwo\x1b[K\r\x1b[K");
}

class TerminalNoticesTest : public testing::Test {
protected:
    int ask(Answering answering, int buttons = session::buttons::question) {
        apps::TerminalNotices notices(console, line, answering, " Say --yes.");
        return session::ShowNotice(notices, "Go on?", "Murvane", "info", buttons);
    }

    ScriptedConsole console;
    apps::StatusLine line{console, true};
};

TEST_F(TerminalNoticesTest, OneLineStaysOneLineAndMoreAreIndented) {
    int remarks = 0;
    apps::TerminalNotices notices(console, line, Answering::Refuses, {}, [&] { ++remarks; });
    session::ShowWarningNotice(notices, "Not found.");
    session::ShowErrorNotice(notices, "One\r\rTwo\r\n  Three\n", "Export blocked");
    EXPECT_EQ(console.error, "Warning: Not found.\nExport blocked:\n  One\n  Two\n  Three\n");
    EXPECT_EQ(remarks, 2);
}

TEST_F(TerminalNoticesTest, TextFromAWorkbookCannotDriveTheTerminal) {
    apps::TerminalNotices notices(console, line, Answering::Refuses);
    session::ShowWarningNotice(notices, "Nāme \x1b[2J\a \xC2\x9B\x9B\x33m gone");
    EXPECT_EQ(console.error, "Warning: Nāme  [2J    3m gone\n");
}

TEST_F(TerminalNoticesTest, AQuestionIsAnsweredAsWasAgreedBeforehand) {
    EXPECT_EQ(ask(Answering::Accepts), answer::ok);
    EXPECT_EQ(ask(Answering::Accepts, 4), answer::yes);
    EXPECT_EQ(ask(Answering::Refuses), answer::cancel);
    EXPECT_EQ(ask(Answering::Refuses, 4), answer::no);
    EXPECT_TRUE(console.errorHas("nobody can be asked here. Say --yes."));
}

TEST_F(TerminalNoticesTest, WhoIsThereIsAsked) {
    for (const char* reply : {"y", " YES "}) {
        console.typed = {reply};
        EXPECT_EQ(ask(Answering::AsksUser), answer::ok) << reply;
    }
    for (const char* reply : {"n", "", "yep"}) {
        console.typed = {reply};
        EXPECT_EQ(ask(Answering::AsksUser), answer::cancel) << reply;
    }
    console.typed.clear();
    EXPECT_EQ(ask(Answering::AsksUser), answer::cancel);
}

/// Waits for the action of an interruption, with a deadline.
struct Awaited {
    [[nodiscard]] bool happensSoon() const {
        for (int i = 0; i < 1000 && times == 0; ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        return times > 0;
    }

    std::atomic<int> times = 0;
};

TEST(UnhandledFailures, AreReportedWithTheirNumbersUnlessTheyAreSentencesOfOurOwn) {
    const auto reportOf = [](const auto& fail) -> std::string {
        try {
            fail();
        } catch (const std::exception& failure) {
            return apps::unhandledFailureReport(failure);
        }
        return "";
    };
    EXPECT_EQ(reportOf([] { office::refuse("Range.Copy", "The sheet is protected"); }),
              "The sheet is protected.");
    EXPECT_EQ(reportOf([] { office::refuseCall("Range.Copy", "No such way"); }),
              "Murvane: unhandled failure 5 from Range.Copy: No such way");
}

TEST(Interruption, RunsItsActionOnceOnEachSignalThatEndsAProgram) {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        apps::Interruption interruption;
        EXPECT_FALSE(interruption.hasHappened());
        Awaited action, second;
        interruption.onceHappened([&] { ++action.times; });
        interruption.onceInsisted([&] { ++second.times; });
        ::kill(::getpid(), signal);
        EXPECT_TRUE(action.happensSoon()) << signal;
        EXPECT_EQ(second.times, 0);
        EXPECT_TRUE(interruption.hasHappened());
        ::kill(::getpid(), signal);
        // The next one must not take it.
        sigset_t untaken;
        while (::sigpending(&untaken) == 0 && ::sigismember(&untaken, signal) == 1)
            std::this_thread::yield();
        Awaited late;
        interruption.onceHappened([&] { ++late.times; });
        EXPECT_EQ(late.times, 1) << "at once";
        EXPECT_TRUE(second.happensSoon());
        EXPECT_EQ(action.times, 1);
    }
}

TEST(Interruption, LeavesOutWhatTheProgramWasToldToIgnore) {
    ::signal(SIGHUP, SIG_IGN);
    apps::Interruption interruption;
    Awaited action;
    interruption.onceHappened([&] { ++action.times; });
    ::kill(::getpid(), SIGHUP);
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    EXPECT_FALSE(interruption.hasHappened());
    ::kill(::getpid(), SIGINT);
    EXPECT_TRUE(action.happensSoon());
    ::signal(SIGHUP, SIG_DFL);
}

TEST(PosixConsole, ReadsALineAtATimeUntilTheEnd) {
    int ends[2];
    ASSERT_EQ(::pipe(ends), 0);
    ASSERT_EQ(::write(ends[1], "y\nno\n", 5), 5);
    ::close(ends[1]);
    const int before = ::dup(STDIN_FILENO);
    ::dup2(ends[0], STDIN_FILENO);
    apps::PosixConsole console([] { return false; });
    EXPECT_EQ(console.readLine(), "y");
    EXPECT_EQ(console.readLine(), "no");
    EXPECT_EQ(console.readLine(), std::nullopt);
    ::dup2(before, STDIN_FILENO);
    ::close(before);
    ::close(ends[0]);
}

}  // namespace

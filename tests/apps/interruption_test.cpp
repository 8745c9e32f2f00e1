#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <thread>

#include "apps/interruption.h"

namespace {

/// Waits for the action of an interruption, with a deadline.
struct Awaited {
    [[nodiscard]] bool happensSoon() const {
        for (int i = 0; i < 1000 && times == 0; ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        return times > 0;
    }

    std::atomic<int> times = 0;
};

TEST(Interruption, RunsItsActionOnceOnEachSignalThatEndsAProgram) {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        apps::Interruption interruption;
        EXPECT_FALSE(interruption.hasHappened());
        Awaited action;
        interruption.onceHappened([&] { ++action.times; });
        ::kill(::getpid(), signal);
        EXPECT_TRUE(action.happensSoon()) << signal;
        EXPECT_TRUE(interruption.hasHappened());
        ::kill(::getpid(), signal);
        interruption.onceHappened(nullptr);
        EXPECT_EQ(action.times, 1);
    }
}

TEST(Interruption, AnActionThatComesTooLateRunsAtOnce) {
    apps::Interruption interruption;
    Awaited first;
    interruption.onceHappened([&] { ++first.times; });
    ::kill(::getpid(), SIGTERM);
    ASSERT_TRUE(first.happensSoon());
    Awaited second;
    interruption.onceHappened([&] { ++second.times; });
    EXPECT_EQ(second.times, 1);
}

}  // namespace

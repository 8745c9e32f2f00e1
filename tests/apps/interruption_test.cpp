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
        Awaited late;
        interruption.onceHappened([&] { ++late.times; });
        EXPECT_EQ(late.times, 1) << "at once";
        EXPECT_EQ(action.times, 1);
    }
}

}  // namespace

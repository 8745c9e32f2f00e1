#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <condition_variable>

#include "apps/interruption.h"

namespace {

/// Waits for the action of an interruption, with a deadline.
class Awaited {
public:
    void happen() {
        const std::lock_guard<std::mutex> lock(lock_);
        ++times_;
        happened_.notify_all();
    }
    [[nodiscard]] bool happensSoon() {
        std::unique_lock<std::mutex> lock(lock_);
        return happened_.wait_for(lock, std::chrono::seconds(10), [&] { return times_ > 0; });
    }
    [[nodiscard]] int times() {
        const std::lock_guard<std::mutex> lock(lock_);
        return times_;
    }

private:
    std::mutex lock_;
    std::condition_variable happened_;
    int times_ = 0;
};

TEST(Interruption, EndsQuietlyWhenNothingHappened) {
    const apps::Interruption interruption;
    EXPECT_FALSE(interruption.hasHappened());
}

TEST(Interruption, RunsItsActionOnceOnEachSignalThatEndsAProgram) {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        apps::Interruption interruption;
        Awaited action;
        interruption.onceHappened([&] { action.happen(); });
        ::kill(::getpid(), signal);
        EXPECT_TRUE(action.happensSoon()) << signal;
        EXPECT_TRUE(interruption.hasHappened());
        ::kill(::getpid(), signal);
        interruption.onceHappened(nullptr);
        EXPECT_EQ(action.times(), 1);
    }
}

TEST(Interruption, AnActionThatComesTooLateRunsAtOnce) {
    apps::Interruption interruption;
    Awaited first;
    interruption.onceHappened([&] { first.happen(); });
    ::kill(::getpid(), SIGTERM);
    ASSERT_TRUE(first.happensSoon());
    Awaited second;
    interruption.onceHappened([&] { second.happen(); });
    EXPECT_EQ(second.times(), 1);
}

}  // namespace

#include <gtest/gtest.h>

#include <string>

#include "office/failure_patterns.h"

namespace {

using office::ContinueOnFailure;
using office::Failure;
using office::FailureNumber;
using office::SuiteLost;

[[noreturn]] void fail() {
    throw Failure(FailureNumber::ApplicationDefined, "Shapes.Paste", "The clipboard is empty");
}

[[noreturn]] void loseSuite() {
    throw SuiteLost("The process has ended");
}

TEST(ContinueOnFailure, SkipsTheFailingStatementAndRunsTheNext) {
    ContinueOnFailure scope;
    std::string ran;
    EXPECT_TRUE(scope.attempt([&] { ran += "a"; }));
    EXPECT_FALSE(scope.attempt([&] {
        fail();
        ran += "b";
    }));
    EXPECT_TRUE(scope.attempt([&] { ran += "c"; }));
    EXPECT_EQ(ran, "ac");
}

TEST(ContinueOnFailure, RemembersTheLatestFailureUntilItIsCleared) {
    ContinueOnFailure scope;
    EXPECT_FALSE(scope.failed());
    scope.attempt([] { fail(); });
    scope.attempt([] {});
    ASSERT_TRUE(scope.failed()) << "a later success does not take the failure back";
    EXPECT_EQ(scope.lastFailure()->source(), "Shapes.Paste");
    scope.raise(Failure(1002, "PowerPointWindowLock", "Newer version."));
    EXPECT_EQ(scope.lastFailure()->number(), 1002);
    scope.clear();
    EXPECT_FALSE(scope.failed());
}

TEST(ContinueOnFailure, ReadsTheSubstituteWhenAnExpressionFails) {
    ContinueOnFailure scope;
    EXPECT_EQ(scope.read([] { return 3; }, 7), 3);
    EXPECT_FALSE(scope.failed());
    EXPECT_EQ(scope.read([]() -> int { fail(); }, 7), 7);
    EXPECT_TRUE(scope.failed());
}

TEST(ContinueOnFailure, LetsAProgrammingErrorPass) {
    ContinueOnFailure scope;
    EXPECT_THROW(scope.attempt([] { throw std::out_of_range("a row"); }), std::out_of_range);
}

TEST(OrElse, LetsTheDefaultStandWhenAnyCallOfTheProcedureFails) {
    EXPECT_EQ(office::orElse([] { return 3; }, 7), 3);
    EXPECT_EQ(office::orElse([]() -> int { fail(); }, 7), 7);
    EXPECT_EQ(office::orElse([]() -> const char* { fail(); }, std::string("none")), "none");
}

TEST(FailurePatterns, LetALostSuiteThrough) {
    ContinueOnFailure scope;
    EXPECT_THROW(scope.attempt([] { loseSuite(); }), SuiteLost);
    EXPECT_THROW(scope.read([]() -> int { loseSuite(); }, 1), SuiteLost);
    EXPECT_THROW(office::orElse([]() -> int { loseSuite(); }, 1), SuiteLost);
    EXPECT_FALSE(scope.failed());
}

}  // namespace

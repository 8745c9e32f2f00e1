#include <gtest/gtest.h>

#include "office/failure_patterns.h"
#include "session/powerpoint_session.h"
#include "session_doubles/test_session.h"

namespace {

using session::LockFailure;
using session::PowerPointWindowLock;
using session_doubles::TestSession;

class SlideView : public testing::Test {
protected:
    TestSession test;

    SlideView() {
        test.suite.powerPoint().addPresentation("Deck.pptx").addSlides(2);
        test.attach();
        test.session.SessionPresentation =
            test.session.PowerPointApp.get("ActivePresentation").toObject();
        window().put("ViewType", sorter);
    }

    static constexpr int sorter = 7;
    [[nodiscard]] office::Value window() const {
        return test.session.PowerPointApp.get("ActiveWindow");
    }
    [[nodiscard]] int viewType() const { return window().get("ViewType").toLong(); }
};

TEST_F(SlideView, OfABatchStaysAsTheUserHasItAndThatOfASelectionBecomesNormal) {
    EXPECT_EQ(session::PrepareSlideView(test.session), sorter);
    EXPECT_EQ(viewType(), sorter);
    EXPECT_EQ(test.suite.clipboardClears(), 1);
    EXPECT_EQ(session::ExitShowNormalView(test.session), sorter);
    EXPECT_EQ(viewType(), 9);
}

class PowerPointWindow : public testing::Test {
protected:
    TestSession test;

    PowerPointWindow() {
        test.suite.powerPoint().addPresentation("Deck.pptx");
        test.attach();
    }

    [[nodiscard]] std::int32_t lockAs(const std::string& version) {
        test.suite.powerPoint().setVersion(version);
        const auto failure = PowerPointWindowLock(test.session, false);
        return failure ? failure->number() : 0;
    }
};

TEST_F(PowerPointWindow, OfAnApplicationThatHasEndedAloneIsNoLostSuite) {
    const office::Object deck = test.session.PowerPointApp.get("ActivePresentation").toObject();
    test.suite.quitPowerPoint();
    office::ContinueOnFailure scope;
    EXPECT_FALSE(scope.attempt([&] { deck.get("Name"); }));
    EXPECT_TRUE(scope.lastFailure()->is(office::FailureNumber::Disconnected));
}

TEST_F(PowerPointWindow, IsLockedForTheVersionsWhoseClassIsKnown) {
    EXPECT_EQ(lockAs("16.0"), 0);
    EXPECT_NE(test.session.PowerPointFrameHandle, 0U);

    PowerPointWindowLock(test.session, true);
    EXPECT_EQ(test.session.PowerPointFrameHandle, 0U);
    EXPECT_EQ(test.suite.lockedWindow(), 0U);
    EXPECT_EQ(test.suite.redraws(), 1);
}

TEST_F(PowerPointWindow, StaysUnlockedWithoutAWordOtherwise) {
    for (const char* version : {"13.0", "17.0", "7.1"}) {
        EXPECT_EQ(lockAs(version), static_cast<std::int32_t>(LockFailure::NewerVersion)) << version;
    }
    EXPECT_EQ(lockAs("12.0"), static_cast<std::int32_t>(LockFailure::NoWindow));
    test.suite.lockDrawing(99);
    EXPECT_EQ(lockAs("15.0"), static_cast<std::int32_t>(LockFailure::NotLocked));
    EXPECT_EQ(static_cast<std::uint32_t>(LockFailure::NoWindow), 0x800403E8U);
    EXPECT_TRUE(test.notices.shown.empty());
}

TEST_F(PowerPointWindow, IsUnlockedAtTheEndOfAScopeAlsoAfterAFailure) {
    try {
        const session::PowerPointWindowLockScope lock(test.session);
        EXPECT_NE(test.suite.lockedWindow(), 0U);
        throw office::Failure(1004, "Shape", "no");
    } catch (const office::Failure&) {
        EXPECT_EQ(test.suite.lockedWindow(), 0U);
    }
}

}  // namespace

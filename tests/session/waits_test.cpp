#include <gtest/gtest.h>

#include "session/waits.h"
#include "session_doubles/test_session.h"

namespace {

using session_doubles::TestSession;

TEST(Waits, LastAsLongAsTheySayWithAnAsynchronousClipboardAlone) {
    TestSession test;
    session::WaitMilliseconds(test.session, 250);
    EXPECT_EQ(test.host.sleptMs, 0U);
    EXPECT_EQ(test.host.pumps, 1);
    test.suite.setPacing(office::Pacing::Asynchronous);
    session::WaitMilliseconds(test.session, 250);
    EXPECT_EQ(test.host.sleptMs, 250U);
    EXPECT_EQ(test.host.pumps, 251);
    session::WaitMilliseconds(test.session, 0);
    EXPECT_EQ(test.host.sleptMs, 250U);
}

TEST(Waits, EndWhenTheClockWrapsAround) {
    TestSession test;
    test.suite.setPacing(office::Pacing::Asynchronous);
    for (const std::uint32_t start : {0xFFFFFFF0U, 0x7FFFFFF0U}) {
        test.host.now = start;
        session::WaitMilliseconds(test.session, 100);
        EXPECT_LE(test.host.sleptMs, 100U);
        test.host.sleptMs = 0;
    }
}

}  // namespace

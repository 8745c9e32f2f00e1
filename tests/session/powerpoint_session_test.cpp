#include <gtest/gtest.h>

#include "session/powerpoint_session.h"
#include "session/ranges.h"
#include "session_doubles/test_session.h"

namespace {

using session_doubles::TestSession;

TEST(AttachingPowerPoint, LeavesNothingBehindWhereItIsClosed) {
    TestSession test;
    test.suite.powerPoint();
    session::AttachPowerPoint(test.session);
    EXPECT_TRUE(test.session.PowerPointFound);
    test.suite.quitPowerPoint();
    session::AttachPowerPoint(test.session);
    EXPECT_FALSE(test.session.PowerPointFound || test.session.PowerPointApp);
    EXPECT_TRUE(test.notices.shown.empty());
}

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

TEST_F(SlideView, OfABatchStaysAsTheUserHasIt) {
    EXPECT_EQ(session::PrepareSlideView(test.session), sorter);
    EXPECT_EQ(viewType(), sorter);
    EXPECT_EQ(test.suite.clipboardClears(), 1);
}

TEST_F(SlideView, OfASelectionPasteBecomesNormal) {
    EXPECT_EQ(session::ExitShowNormalView(test.session), sorter);
    EXPECT_EQ(viewType(), 9);
}

TEST_F(SlideView, EndsARunningShow) {
    auto& shown = test.suite.powerPoint().addPresentation("Show.pptx").runSlideShow();
    test.session.SessionPresentation = shown.handle();
    session::PrepareSlideView(test.session);
    EXPECT_FALSE(shown.showsSlides());
    shown.runSlideShow();
    session::ExitShowNormalView(test.session);
    EXPECT_FALSE(shown.showsSlides());
}

TEST_F(SlideView, PassesOverWhatFails) {
    test.suite.failures().failAlways("Application.ActiveWindow");
    test.suite.failures().failAlways("Presentation.Windows");
    session::PrepareSlideView(test.session);
    session::ExitShowNormalView(test.session);
    EXPECT_EQ(test.suite.clipboardClears(), 2);
}

TEST(Ranges, OfDifferentSheetsAreAFailureAndNotAnAnswer) {
    TestSession test;
    auto& book = test.suite.excel().addWorkbook("Book1.xlsx");
    book.sheet("A");
    book.sheet("B");
    test.attach();
    const auto range = [&](const char* sheet, const char* address) {
        return test.sheet(sheet).get("Range", address).toObject();
    };
    EXPECT_TRUE(session::RangesIntersect(test.session, range("A", "A1:B2"), range("A", "B2:C9")));
    EXPECT_FALSE(session::RangesIntersect(test.session, range("A", "A1"), range("A", "B2")));
    EXPECT_THROW(static_cast<void>(
                     session::RangesIntersect(test.session, range("A", "A1"), range("B", "A1"))),
                 office::Failure);
}

}  // namespace

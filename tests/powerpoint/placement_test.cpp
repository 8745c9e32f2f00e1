#include <fmt/format.h>

#include "export_stage.h"
#include "powerpoint/placement.h"

namespace {

using office::Value;
using office_double::Box;
using office_double::Layout;
using office_double::Shape;
using stage::ExportStage;

void expectBox(const Box& box, const Box& expected, std::string_view what) {
    EXPECT_NEAR(box.left, expected.left, 1e-9) << what;
    EXPECT_NEAR(box.top, expected.top, 1e-9) << what;
    EXPECT_NEAR(box.width, expected.width, 1e-9) << what;
    EXPECT_NEAR(box.height, expected.height, 1e-9) << what;
}

TEST_F(ExportStage, APictureIsCutOnEachSideForItselfAndCentred) {
    // Slides are 960 by 540.
    const std::pair<Box, Box> cases[] = {{{0, 0, 240, 150}, {360, 195, 240, 150}},
                                         {{0, 0, 1920, 150}, {48, 195, 864, 150}},
                                         {{0, 0, 1920, 1080}, {48, 27, 864, 486}},
                                         {{0, 0, 864, 10}, {48, 265, 864, 10}}};
    for (const auto& [natural, fitted] : cases) {
        Shape& picture = deck.addSlide().shape(Shape::Kind::Picture, "Picture", natural);
        powerpoint::FitPictureToSlide(picture.handle(), deck.handle());
        expectBox(picture.box(), fitted, fmt::format("{} wide", natural.width));
    }
}

TEST_F(ExportStage, APictureAsWideAsTheLimitIsLeftAloneOnAnySlide) {
    // Nine tenths of this width is no number that single precision holds exactly.
    deck.slideSize(961.3, 541.7);
    const double limit = 961.3 * 0.9;
    Shape& picture = deck.addSlide().shape(Shape::Kind::Picture, "Picture", {0, 0, limit, 10});
    powerpoint::FitPictureToSlide(picture.handle(), deck.handle());
    EXPECT_EQ(picture.box().width, limit);
    EXPECT_EQ(suite.log().count("Shape.Width", support::CallKind::Put), 0U);
    Shape& wider = deck.addSlide().shape(Shape::Kind::Picture, "Picture", {0, 0, 2000, 10});
    powerpoint::FitPictureToSlide(wider.handle(), deck.handle());
    EXPECT_EQ(wider.box().width, static_cast<double>(static_cast<float>(limit)));
}

/// Slides of the stage: 960 by 540, title 27 to 129.6.
class PlacementTest : public ExportStage {
protected:
    PlacementTest() { deck.addSlides(1); }

    Shape& pictureOf(double width, double height) {
        return deck.slide(1).shape(Shape::Kind::Picture, "Picture", {0, 0, width, height});
    }

    void place(int slide = 1) {
        const auto onSlide = deck.handle().get("Slides").get("Item", slide);
        powerpoint::PlaceLastShape(session, onSlide.get("Shapes").toObject(), title);
    }

    powerpoint::TitlePlace title;
};

TEST_F(PlacementTest, WithoutAStoreNothingMoves) {
    Shape& picture = pictureOf(240, 150);
    place();
    EXPECT_EQ(picture.box().left, 0);
    EXPECT_EQ(suite.locksTaken(), 0);
}

TEST_F(PlacementTest, PlacesAsTheStoreSaysAndKeepsTheShapeVisible) {
    const Value open;
    const Box square = {0, 0, 400, 400};
    const Box flat = {0, 0, 1000, 100};
    // Five hundredths of the slide are 48 by 27, and the margin at its foot is at 513.
    const std::tuple<const char*, Value, Value, Value, Box, Box> cases[] = {
        {"open", open, open, open, flat, {48, 136.08, 864, 86.4}},
        {"words", "Default", "Default", "Default", flat, {48, 136.08, 864, 86.4}},
        {"shares", 0.5, 0.25, 0.1, {0, 0, 480, 240}, {96, 270, 240, 120}},
        {"shrunk at the foot, then centred in whole points",
         0.5,
         0.9,
         open,
         square,
         {358, 270, 243, 243}},
        {"cut at the right edge", 0.3, 0.9, 0.5, flat, {480, 162, 480, 48}},
        {"no width", 0.0, 0.0, 0.0, square, {0, 0, 48, 48}},
        {"top at the foot", 1.0, 0.5, 0.0, square, {0, 486, 27, 27}},
        {"top below the margin", 0.97, 0.5, open, square, {466, 486, 27, 27}},
        {"left at the right edge", 0.0, 0.5, 1.0, square, {912, 0, 48, 48}},
        {"off the slide", -3.0, 7.0, -2.0, square, {0, 0, 513, 513}}};
    for (const auto& [what, top, width, left, natural, placed] : cases) {
        storePlacement(top, width, left);
        Shape& picture = pictureOf(natural.width, natural.height);
        place();
        expectBox(picture.box(), placed, what);
    }
    EXPECT_EQ(suite.locksTaken(), 10);
    EXPECT_EQ(suite.lockedWindow(), 0U);
}

TEST_F(PlacementTest, ASlideWithoutATitleInheritsTheTitleOfTheOneBefore) {
    storePlacement({}, {}, {});
    deck.addSlide(Layout::Blank);
    Shape& atTheEdge = deck.slide(2).shape(Shape::Kind::Picture, "Picture", {0, 50, 240, 15});
    place(2);
    EXPECT_EQ(atTheEdge.box().top, 0) << "there was none before";
    pictureOf(240, 15);
    place();
    place(2);
    EXPECT_NEAR(atTheEdge.box().top, 136.08, 1e-9);
}

TEST_F(PlacementTest, AShapeThatCannotMoveFailsForTheCallerWithTheLockGivenBack) {
    storePlacement(0.5, 0.25, 0.1);
    pictureOf(480, 240).refuseChanges();
    EXPECT_THROW(place(), office::Failure);
    EXPECT_EQ(suite.lockedWindow(), 0U);
}

}  // namespace

#include "export_stage.h"
#include "powerpoint/placement.h"

namespace {

using office_double::Box;
using office_double::Layout;
using office_double::Shape;
using stage::ExportStage;

struct FitCase {
    const char* what;
    Box natural;
    Box fitted;
};

class FitPictureToSlideTest : public ExportStage, public testing::WithParamInterface<FitCase> {};

TEST_P(FitPictureToSlideTest, CutsEachSideForItselfAndCentres) {
    Shape& picture = deck.addSlide().shape(Shape::Kind::Picture, "Picture", GetParam().natural);
    powerpoint::FitPictureToSlide(picture.handle(), deck.handle());
    const Box& expected = GetParam().fitted;
    EXPECT_DOUBLE_EQ(picture.box().width, expected.width);
    EXPECT_DOUBLE_EQ(picture.box().height, expected.height);
    EXPECT_DOUBLE_EQ(picture.box().left, expected.left);
    EXPECT_DOUBLE_EQ(picture.box().top, expected.top);
}

INSTANTIATE_TEST_SUITE_P(
    OnASlideOf960By540, FitPictureToSlideTest,
    testing::Values(FitCase{"small", {0, 0, 240, 150}, {360, 195, 240, 150}},
                    FitCase{"too wide", {0, 0, 1920, 150}, {48, 195, 864, 150}},
                    FitCase{"both", {0, 0, 1920, 1080}, {48, 27, 864, 486}},
                    FitCase{"as wide as the limit", {0, 0, 864, 10}, {48, 265, 864, 10}}));

TEST_F(ExportStage, APictureAsWideAsTheLimitIsLeftAloneOnAnySlide) {
    // Nine tenths of this width is no number that single precision holds exactly.
    deck.slideSize(961.3, 541.7);
    const double limit = 961.3 * 0.9;
    Shape& picture = deck.addSlide().shape(Shape::Kind::Picture, "Picture", {0, 0, limit, 10});
    powerpoint::FitPictureToSlide(picture.handle(), deck.handle());
    EXPECT_EQ(picture.box().width, limit);
    EXPECT_EQ(suite.log().count("Shape.Width", support::CallKind::Put), 0U);
}

TEST_F(ExportStage, ACutPictureIsAsWideAsSinglePrecisionSays) {
    deck.slideSize(961.3, 541.7);
    Shape& picture = deck.addSlide().shape(Shape::Kind::Picture, "Picture", {0, 0, 2000, 10});
    powerpoint::FitPictureToSlide(picture.handle(), deck.handle());
    EXPECT_EQ(picture.box().width, static_cast<double>(static_cast<float>(961.3 * 0.9)));
}

/// Slides of the stage: 960 by 540, title 27 to 129.6.
class PlacementTest : public ExportStage {
protected:
    PlacementTest() { deck.addSlides(1); }

    Shape& pictureOf(double width, double height) {
        return deck.slide(1).shape(Shape::Kind::Picture, "Picture", {0, 0, width, height});
    }

    [[nodiscard]] office::Object shapesOf(int slide) const {
        return deck.handle().get("Slides").get("Item", slide).get("Shapes").toObject();
    }
    void place(int slide = 1) { powerpoint::PlaceLastShape(session, shapesOf(slide), title); }

    powerpoint::TitlePlace title;
};

TEST_F(PlacementTest, WithoutAStoreNothingMoves) {
    Shape& picture = pictureOf(240, 150);
    place();
    EXPECT_EQ(picture.box().left, 0);
    EXPECT_EQ(suite.locksTaken(), 0);
}

struct PlacedCase {
    const char* what;
    office::Value top;
    office::Value width;
    office::Value left;
    Box natural;
    Box placed;
};

TEST_F(PlacementTest, PlacesAsTheStoreSaysAndKeepsTheShapeVisible) {
    const office::Value open;
    const Box square = {0, 0, 400, 400};
    const Box flat = {0, 0, 1000, 100};
    // Five hundredths of the slide are 48 by 27, and the margin at its foot is at 513.
    for (const PlacedCase& it : std::vector<PlacedCase>{
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
             {"off the slide", -3.0, 7.0, -2.0, square, {0, 0, 513, 513}}}) {
        storePlacement(it.top, it.width, it.left);
        Shape& picture = pictureOf(it.natural.width, it.natural.height);
        place();
        EXPECT_NEAR(picture.box().left, it.placed.left, 1e-9) << it.what;
        EXPECT_NEAR(picture.box().top, it.placed.top, 1e-9) << it.what;
        EXPECT_NEAR(picture.box().width, it.placed.width, 1e-9) << it.what;
        EXPECT_NEAR(picture.box().height, it.placed.height, 1e-9) << it.what;
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

TEST_F(PlacementTest, TheSourceLineNamesTheWorkbookAtItsFixedPlace) {
    powerpoint::AddSourceLine(session, shapesOf(1));
    const Shape& label = *deck.slide(1).shapes().back();
    EXPECT_EQ(label.text(), "/documents/Book1.xlsx");
    EXPECT_EQ(label.box().left, 20.25);
    EXPECT_EQ(label.box().top, 518);
    // It has grown with the path.
    EXPECT_GT(label.box().width, 50);
    const auto font =
        deck.slide(1).shapes().back()->handle().get("TextFrame").get("TextRange").get("Font");
    EXPECT_EQ(font.get("Name").toText(), "Tahoma");
    EXPECT_EQ(font.get("Size").toDouble(), 10);
    EXPECT_EQ(font.get("Color").get("RGB").toLong(), 0xB2B2B2);
}

}  // namespace

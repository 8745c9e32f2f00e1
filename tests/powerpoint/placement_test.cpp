#include "export_stage.h"
#include "powerpoint/numbers.h"
#include "powerpoint/placement.h"

namespace {

using office_double::Box;
using office_double::Layout;
using office_double::Shape;
using stage::ExportStage;

TEST(ShortInteger, RoundsHalvesToTheEvenNeighbour) {
    EXPECT_EQ(powerpoint::shortInteger(2.5), 2);
    EXPECT_EQ(powerpoint::shortInteger(3.5), 4);
    EXPECT_EQ(powerpoint::shortInteger(-0.5), 0);
}

TEST(ShortInteger, RefusesWhatSixteenBitsDoNotHold) {
    EXPECT_EQ(powerpoint::shortInteger(32767.4), 32767);
    EXPECT_THROW(static_cast<void>(powerpoint::shortInteger(32767.5)), office::Failure);
    EXPECT_THROW(static_cast<void>(powerpoint::shortInteger(-40000)), office::Failure);
}

struct HalfCase {
    double length;
    double half;
};

TEST(HalfInWholePoints, RoundsFirstAndCutsTheHalfTowardsZero) {
    for (const HalfCase& c :
         {HalfCase{96, 48}, {97, 48}, {96.5, 48}, {97.5, 49}, {1.4, 0}, {-3, -1}, {-4, -2}}) {
        EXPECT_EQ(powerpoint::halfInWholePoints(c.length), c.half) << c.length;
    }
}

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
                    FitCase{"too high", {0, 0, 240, 1000}, {360, 27, 240, 486}},
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
    PlacementTest() {
        deck.addSlides(1);
        session.CurrentSlideIndex = 1;
    }

    Shape& pictureOf(double width, double height) {
        return deck.slide(1).shape(Shape::Kind::Picture, "Picture", {0, 0, width, height});
    }

    void place() {
        powerpoint::LoadSlidePlacement(session);
        powerpoint::PlaceLastShape(session);
    }
};

TEST_F(PlacementTest, WithoutAStoreNothingIsReadAndNothingMoves) {
    Shape& picture = pictureOf(240, 150);
    place();
    EXPECT_TRUE(session.TopPct.isEmpty());
    EXPECT_EQ(picture.box().left, 0);
    EXPECT_EQ(suite.locksTaken(), 0);
}

TEST_F(PlacementTest, AStoreWithOpenCellsGivesNineTenthsCentredBelowTheTitle) {
    for (const office::Value& open : {office::Value(), office::Value("Default")}) {
        storePlacement(open, open, open);
        Shape& picture = pictureOf(1000, 100);
        place();
        EXPECT_DOUBLE_EQ(picture.box().width, 864);
        EXPECT_DOUBLE_EQ(picture.box().height, 86.4);
        EXPECT_DOUBLE_EQ(picture.box().left, 48);
        EXPECT_NEAR(picture.box().top, 129.6 * 1.05, 1e-9);
    }
}

TEST_F(PlacementTest, StoredSharesPlaceTheShape) {
    storePlacement(0.5, 0.25, 0.1);
    Shape& picture = pictureOf(480, 240);
    place();
    EXPECT_DOUBLE_EQ(picture.box().top, 270);
    EXPECT_DOUBLE_EQ(picture.box().width, 240);
    EXPECT_DOUBLE_EQ(picture.box().height, 120);
    EXPECT_DOUBLE_EQ(picture.box().left, 96);
}

TEST_F(PlacementTest, AShareKeptAsTextCountsByItsLeadingNumber) {
    storePlacement("0.5 of it", 0.25, "0.1x");
    Shape& picture = pictureOf(480, 240);
    place();
    EXPECT_DOUBLE_EQ(picture.box().top, 270);
    EXPECT_DOUBLE_EQ(picture.box().left, 96);
}

TEST_F(PlacementTest, AShapeThatWouldPassTheBottomMarginIsShrunkAndCentredByItsNewWidth) {
    storePlacement(0.5, 0.9, {});
    Shape& picture = pictureOf(800, 800);
    place();
    // From 270 to 513, square.
    EXPECT_DOUBLE_EQ(picture.box().height, 243);
    EXPECT_DOUBLE_EQ(picture.box().width, 243);
    // (960 - 243) / 2 = 358.5 is cut to whole points.
    EXPECT_DOUBLE_EQ(picture.box().left, 358);
}

TEST_F(PlacementTest, AShapeThatWouldPassTheRightEdgeIsCutThereAndKeepsItsLeft) {
    storePlacement(0.3, 0.9, 0.5);
    Shape& picture = pictureOf(1000, 100);
    place();
    EXPECT_DOUBLE_EQ(picture.box().left, 480);
    EXPECT_DOUBLE_EQ(picture.box().width, 480);
    EXPECT_DOUBLE_EQ(picture.box().height, 48);
    EXPECT_DOUBLE_EQ(picture.box().top, 162);
}

TEST_F(PlacementTest, ASlideWithoutATitleInheritsTheTitleOfTheOneBefore) {
    storePlacement({}, {}, {});
    pictureOf(240, 150);
    place();
    const double first = session.TopPct.toDouble();
    deck.addSlide(Layout::Blank);
    deck.slide(2).shape(Shape::Kind::Picture, "Picture", {0, 0, 240, 150});
    session.CurrentSlideIndex = 2;
    session.PowerPointApp.get("ActiveWindow").get("View").call("GotoSlide", 2);
    place();
    EXPECT_GT(first, 0);
    EXPECT_EQ(session.TopPct.toDouble(), first);
}

TEST_F(PlacementTest, WithoutAnyTitleTheDerivedTopIsTheSlidesEdge) {
    storePlacement({}, {}, {});
    deck.addSlide(Layout::Blank);
    Shape& picture = deck.slide(2).shape(Shape::Kind::Picture, "Picture", {0, 50, 240, 15});
    session.CurrentSlideIndex = 2;
    session.PowerPointApp.get("ActiveWindow").get("View").call("GotoSlide", 2);
    place();
    EXPECT_EQ(picture.box().top, 0);
}

TEST_F(PlacementTest, AfterALoadThatDidNotFinishTheTopIsFivePointsBelowTheTitle) {
    storePlacement(0.5, 0.25, 0.1);
    Shape& picture = pictureOf(480, 240);
    session.TitleTop = 20;
    session.TitleHeight = 30;
    session.WidthPct = 0.25;
    session.LeftPct = "Default";
    suite.failures().fail("Selection.SlideRange");
    place();
    EXPECT_DOUBLE_EQ(picture.box().top, 55);
    EXPECT_DOUBLE_EQ(picture.box().left, 360);
}

TEST_F(PlacementTest, TheShapeIsSelectedTheClipboardIsClearedAndTheLockGivenBack) {
    storePlacement(0.5, 0.25, 0.1);
    pictureOf(480, 240);
    place();
    EXPECT_EQ(session.PowerPointApp.get("ActiveWindow")
                  .get("Selection")
                  .get("ShapeRange")
                  .get("Count")
                  .toLong(),
              1);
    EXPECT_EQ(suite.clipboardClears(), 1);
    EXPECT_EQ(suite.locksTaken(), 1);
    EXPECT_EQ(suite.lockedWindow(), 0U);
}

TEST_F(PlacementTest, AShapeThatCannotMoveFailsForTheCallerWithTheLockGivenBack) {
    storePlacement(0.5, 0.25, 0.1);
    pictureOf(480, 240).refuseChanges();
    powerpoint::LoadSlidePlacement(session);
    EXPECT_THROW(powerpoint::PlaceLastShape(session), office::Failure);
    EXPECT_EQ(suite.lockedWindow(), 0U);
}

TEST_F(PlacementTest, TheSourceLineNamesTheWorkbookAtItsFixedPlace) {
    powerpoint::AddSourceLine(session);
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
    EXPECT_EQ(suite.log().texts("TextRange.Characters"),
              std::vector<std::string>{"TextRange.Characters(Start:=1, Length:=0)"});
    EXPECT_EQ(session.PowerPointApp.get("ActiveWindow").get("Selection").get("Type").toLong(), 0);
}

}  // namespace

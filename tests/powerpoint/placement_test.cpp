#include <fmt/format.h>

#include "export_stage.h"
#include "powerpoint/placement.h"
#include "support/package_edit.h"

namespace {

using office::Value;
using office::model::excel::Box;
using office_double::Shape;
using stage::ExportStage;

void expectBox(const Box& box, const Box& expected, std::string_view what) {
    EXPECT_NEAR(box.left, expected.left, 1e-3) << what;
    EXPECT_NEAR(box.top, expected.top, 1e-3) << what;
    EXPECT_NEAR(box.width, expected.width, 1e-3) << what;
    EXPECT_NEAR(box.height, expected.height, 1e-3) << what;
}

TEST_F(ExportStage, APictureIsCutOnEachSideForItselfAndCentred) {
    // Slides are 960 by 540.
    const std::pair<Box, Box> cases[] = {{{0, 0, 240, 150}, {360, 195, 240, 150}},
                                         {{0, 0, 1920, 150}, {48, 195, 864, 150}},
                                         {{0, 0, 1920, 1080}, {48, 27, 864, 486}},
                                         {{0, 0, 864, 10}, {48, 265, 864, 10}}};
    for (const auto& [natural, fitted] : cases) {
        const Shape picture = deck.addSlide().addPicture(natural);
        powerpoint::FitPictureToSlide(picture.handle(), deck.handle());
        expectBox(picture.box(), fitted, fmt::format("{} wide", natural.width));
    }
}

TEST_F(ExportStage, TheSourceLineStandsOnTheSlideHoweverLowThatIs) {
    // As high as those that LibreOffice begins with.
    auto package = support::emptyDeck();
    support::edit(package, "/ppt/presentation.xml", "6858000", "5670000");
    auto& low = suite.powerPoint().addPresentation("Low.pptx", "/documents", std::move(package));
    for (auto* const each : {&deck, &low}) {
        session.SessionPresentation = each->handle();
        const auto slide = each->addSlide();
        const auto slides = each->handle().get("Slides");
        powerpoint::AddSourceLine(session,
                                  slides.get("Item", each->slideCount()).get("Shapes").toObject());
        EXPECT_DOUBLE_EQ(slide.shapes().back().box().top, each->slideSize().height - 22);
    }
}

TEST_F(ExportStage, APictureAsWideAsTheLimitIsLeftAloneOnAnySlide) {
    // Nine tenths of this width is no number that single precision holds exactly.
    auto package = support::emptyDeck();
    support::edit(package, "/ppt/presentation.xml", "12192000", "12208510");
    auto& odd = suite.powerPoint().addPresentation("Odd.pptx", "/documents", std::move(package));
    const double limit = odd.slideSize().width * 0.9;
    for (const double width : {limit, 2000.0}) {
        const Shape picture = odd.addSlide().addPicture({0, 0, width, 10});
        powerpoint::FitPictureToSlide(picture.handle(), odd.handle());
        EXPECT_NEAR(picture.box().width, limit, 1e-3);
        EXPECT_EQ(suite.log().count("Shape.Width", support::CallKind::Put),
                  width == limit ? 0U : 1U);
    }
}

/// Slides of the stage: 960 by 540, title 27 to 129.6.
class PlacementTest : public ExportStage {
protected:
    PlacementTest() {
        const auto shape = deck.addSlide().title().handle();
        shape.put("Top", 27);
        shape.put("Height", 102.6);
    }

    Shape pictureOf(double width, double height) {
        return deck.slide(1).addPicture({0, 0, width, height});
    }

    void place(int slide = 1) {
        const auto onSlide = deck.handle().get("Slides").get("Item", slide);
        powerpoint::PlaceLastShape(session, onSlide.get("Shapes").toObject(), title);
    }

    powerpoint::TitlePlace title;
};

TEST_F(PlacementTest, WithoutAStoreNothingMoves) {
    const Shape picture = pictureOf(240, 150);
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
        const Shape picture = pictureOf(natural.width, natural.height);
        place();
        expectBox(picture.box(), placed, what);
    }
    EXPECT_EQ(suite.locksTaken(), 10);
    EXPECT_EQ(suite.lockedWindow(), 0U);
}

TEST_F(PlacementTest, ASlideWithoutATitleInheritsTheTitleOfTheOneBefore) {
    storePlacement({}, {}, {});
    const auto second = deck.addSlide(office_double::model::layout::blank);
    const Shape atTheEdge = second.addPicture({0, 50, 240, 15});
    place(2);
    EXPECT_EQ(atTheEdge.box().top, 0) << "there was none before";
    pictureOf(240, 15);
    place();
    place(2);
    EXPECT_NEAR(atTheEdge.box().top, 136.08, 1e-3);
}

TEST_F(PlacementTest, AShapeThatCannotMoveFailsForTheCallerWithTheLockGivenBack) {
    storePlacement(0.5, 0.25, 0.1);
    static_cast<void>(pictureOf(480, 240));
    suite.failures().failAlways("Shape.Top");
    EXPECT_THROW(place(), office::Failure);
    EXPECT_EQ(suite.lockedWindow(), 0U);
}

}  // namespace

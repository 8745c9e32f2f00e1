#include <filesystem>

#include "contract/contract_test.h"

namespace contract {

namespace {

constexpr std::int32_t titleOnly = 11;
constexpr std::int32_t blank = 12;

TEST_F(PowerPointContract, KnowsThePresentationItHasOpened) {
    EXPECT_TRUE(powerPoint.get("Version").toText().starts_with("16."));
    EXPECT_EQ(deck.typeName(), "Presentation");
    EXPECT_EQ(deck.get("Name").toText(), "contract-deck.pptx");
    EXPECT_EQ(deck.get("FullName").toText(), environment().document("contract-deck.pptx"));
    EXPECT_EQ(powerPoint.get("ActivePresentation").get("Name").toText(), "contract-deck.pptx");
    EXPECT_EQ(powerPoint.get("Presentations").get("Item", 1).get("Name").toText(),
              "contract-deck.pptx");
    EXPECT_NEAR(deck.get("PageSetup").get("SlideWidth").toDouble(), 960, 1);
    EXPECT_NEAR(deck.get("PageSetup").get("SlideHeight").toDouble(), 540, 1);
}

TEST_F(PowerPointContract, FailsWithoutAnOpenPresentation) {
    const Object shapes = slide(1).get("Shapes").toObject();
    deck.call("Close");
    EXPECT_EQ(powerPoint.get("Presentations").get("Count").toLong(), 0);
    EXPECT_NE(failureOf([&] { powerPoint.get("ActivePresentation"); }), 0);
    EXPECT_NE(failureOf([&] { powerPoint.get("ActiveWindow"); }), 0);
    EXPECT_NE(failureOf([&] { deck.get("Name"); }), 0);
    EXPECT_NE(failureOf([&] { shapes.get("Count"); }), 0);
}

TEST_F(PowerPointContract, MakesAPresentationOfItsOwn) {
    const Value added = powerPoint.get("Presentations").call("Add");
    EXPECT_FALSE(added.get("Name").toText().empty());
    EXPECT_EQ(powerPoint.get("Presentations").get("Count").toLong(), 2);
    EXPECT_EQ(powerPoint.get("Windows").get("Count").toLong(), 2);
    added.call("Close");
    EXPECT_EQ(powerPoint.get("Presentations").get("Count").toLong(), 1);
}

TEST_F(PowerPointContract, InsertsSlidesAtTheIndexWithTheirLayout) {
    EXPECT_EQ(slides().get("Count").toLong(), 4);
    const Value first = slides().call("Add", 5, titleOnly);
    const Value second = slides().call("Add", 5, blank);
    EXPECT_EQ(slides().get("Count").toLong(), 6);
    EXPECT_EQ(first.get("SlideIndex").toLong(), 6) << "the later one takes the place";
    EXPECT_EQ(second.get("SlideIndex").toLong(), 5);
    EXPECT_EQ(slide(6).get("Layout").toLong(), titleOnly);
    EXPECT_EQ(slide(5).get("Layout").toLong(), blank);
    EXPECT_EQ(failureOf([&] { slide(6).get("Shapes").get("Title"); }), 0);
    EXPECT_EQ(failureOf([&] { slide(5).get("Shapes").get("Title"); }), refused);
    slides().call("Add", arg("Index", 1), arg("Layout", titleOnly));
    EXPECT_EQ(second.get("SlideIndex").toLong(), 6);
}

TEST_F(PowerPointContract, TellsNewSlidesApartAsSoonAsSomebodyCould) {
    const auto titleOf = [](const Value& slide) {
        return slide.get("Shapes").get("Title").get("TextFrame").get("TextRange");
    };
    for (int i = 0; i < 3; ++i) slides().call("Add", 1, titleOnly);
    titleOf(slides().call("Add", 1, titleOnly)).put("Text", "written");
    slides().call("Add", 1, titleOnly);
    slides().call("Add", 1, titleOnly);
    EXPECT_EQ(titleOf(slide(3)).get("Text").toText(), "written") << "two came in front of it";
    const Value kept = slides().call("Add", 1, titleOnly);
    const Value next = slides().call("Add", 1, titleOnly);
    EXPECT_EQ(kept.get("SlideIndex").toLong(), 2) << "one that is in somebody's hands";
    EXPECT_EQ(next.get("SlideIndex").toLong(), 1);
    slides().call("Add", 1, titleOnly);
    slides().call("Add", 1, blank);
    slides().call("Add", 1, titleOnly);
    EXPECT_EQ(slide(2).get("Layout").toLong(), blank);
    EXPECT_EQ(slides().get("Count").toLong(), 4 + 11);
    EXPECT_EQ(titleOf(slide(8)).get("Text").toText(), "written");
}

TEST_F(PowerPointContract, RefusesASlideWhereThereIsNoPlace) {
    EXPECT_NE(failureOf([&] { slides().call("Add", 0, titleOnly); }), 0);
    EXPECT_NE(failureOf([&] { slides().call("Add", 9, titleOnly); }), 0);
    EXPECT_EQ(failureOf([&] { slides().call("Add", 3, 99); }), 5) << "no such layout";
    EXPECT_EQ(slides().get("Count").toLong(), 4);
    EXPECT_EQ(failureOf([&] { slides().get("Item", 5); }), subscriptOutOfRange);
}

TEST_F(PowerPointContract, DeletesASlide) {
    const Object second = slide(2);
    second.call("Delete");
    EXPECT_EQ(slides().get("Count").toLong(), 3);
    EXPECT_NE(failureOf([&] { second.get("SlideIndex"); }), 0);
}

TEST_F(PowerPointContract, ReadsAndWritesTitles) {
    const Value title = slide(3).get("Shapes").get("Title");
    EXPECT_EQ(title.get("TextFrame").get("TextRange").get("Text").toText(), "Chart here");
    EXPECT_GT(title.get("Width").toDouble(), 300);
    EXPECT_GT(title.get("Top").toDouble() + title.get("Height").toDouble(), 20);
    title.get("TextFrame").get("TextRange").put("Text", "Umsätze –\r2026");
    EXPECT_EQ(
        slide(3).get("Shapes").get("Title").get("TextFrame").get("TextRange").get("Text").toText(),
        "Umsätze –\r2026");
}

TEST_F(PowerPointContract, ShowsTheSlideThatItGoesTo) {
    const auto shown = [&] { return window().get("View").get("Slide").get("SlideIndex").toLong(); };
    EXPECT_EQ(shown(), 1);
    goTo(3);
    EXPECT_EQ(shown(), 3);
    EXPECT_EQ(selection().get("SlideRange").get("SlideIndex").toLong(), 3);
    expectMembers(selection(), {{"SlideRange.Shapes.Count", slide(3).get("Shapes").get("Count")}});
    slide(2).call("Select");
    EXPECT_EQ(shown(), 2);
    EXPECT_EQ(selection().get("SlideRange").get("SlideIndex").toLong(), 2);
    EXPECT_NE(failureOf([&] { goTo(99); }), 0);
    EXPECT_EQ(shown(), 2);
}

TEST_F(PowerPointContract, StaysAtItsSlideWhenOthersAreAdded) {
    goTo(2);
    slides().call("Add", 5, titleOnly);
    EXPECT_EQ(window().get("View").get("Slide").get("SlideIndex").toLong(), 2);
}

TEST_F(PowerPointContract, KnowsItsViewAndGoesToAnother) {
    EXPECT_EQ(window().get("ViewType").toLong(), 9);
    window().put("ViewType", 7);
    EXPECT_EQ(window().get("ViewType").toLong(), 7);
    window().put("ViewType", 9);
    EXPECT_EQ(window().get("ViewType").toLong(), 9);
}

TEST_F(PowerPointContract, RunsNoSlideShow) {
    EXPECT_EQ(powerPoint.get("SlideShowWindows").get("Count").toLong(), 0);
    EXPECT_NE(failureOf([&] { deck.get("SlideShowWindow").get("View").call("Exit"); }), 0);
}

TEST_F(PowerPointContract, SavesACopyAndKeepsItsOwnName) {
    const std::string copy = environment().temporaryFile("copy.pptx");
    deck.call("SaveCopyAs", copy);
    EXPECT_TRUE(std::filesystem::exists(copy));
    EXPECT_EQ(deck.get("Name").toText(), "contract-deck.pptx");
}

TEST_F(PowerPointContract, FindsAWindowByItsCaption) {
    const auto found = suite().findWindow("", "contract-deck.pptx - PowerPoint");
    EXPECT_NE(found, 0U);
    EXPECT_NE(suite().findWindow("PPTFrameClass", ""), 0U);
    EXPECT_EQ(suite().findWindow("", "Nonesuch.pptx - PowerPoint"), 0U);
    EXPECT_EQ(suite().findWindow("PP12FrameClass", ""), 0U);

    const std::filesystem::path elsewhere = environment().temporaryFile("elsewhere");
    create_directory(elsewhere);
    copy(environment().document("contract-deck.pptx"), elsewhere / "contract-deck.pptx");
    const Object namesake = powerPoint.get("Presentations")
                                .call("Open", (elsewhere / "contract-deck.pptx").string())
                                .toObject();
    for (const Object& each : {deck, namesake}) {
        each.get("Windows").get("Item", 1).call("Activate");
        EXPECT_EQ(suite().findWindow("", "contract-deck.pptx - PowerPoint"),
                  suite().findWindow("", ""))
            << "the active one";
    }
    namesake.call("Close");
}

TEST_F(PowerPointContract, FreezesOneWindowAtATime) {
    const auto found = suite().findWindow("PPTFrameClass", "");
    EXPECT_TRUE(suite().lockDrawing(found));
    EXPECT_FALSE(suite().lockDrawing(found));
    suite().unlockDrawing();
    EXPECT_TRUE(suite().lockDrawing(found));
    suite().unlockDrawing();
    suite().redraw(found);
}

}  // namespace

}  // namespace contract

#include <fstream>
#include <ostream>

#include "live/powerpoint_live_test.h"

namespace live {

namespace {

struct DeckWithLayouts {
    const char* file;
    double titleOnlyLeft;
};

void PrintTo(const DeckWithLayouts& deck, std::ostream* out) {
    *out << deck.file;
}

class LayoutOfDeck : public PowerPointLive, public testing::WithParamInterface<DeckWithLayouts> {};

INSTANTIATE_TEST_SUITE_P(Decks, LayoutOfDeck,
                         testing::Values(DeckWithLayouts{"english.pptx", 72},
                                         DeckWithLayouts{"german.pptx", 72},
                                         DeckWithLayouts{"two-designs.pptx", 90}),
                         [](const auto& each) {
                             std::string name = each.param.file;
                             return name.substr(0, name.find_first_of(".-"));
                         });

TEST_P(LayoutOfDeck, IsFoundForANewSlide) {
    const Object deck = open(GetParam().file);
    const auto titleLeft = [&](std::int32_t layout) {
        const Value added = deck.get("Slides").call("Add", slideCount(deck) + 1, layout);
        EXPECT_EQ(added.get("Layout").toLong(), layout);
        return added.get("Shapes").get("Title").get("Left").toDouble();
    };
    EXPECT_NEAR(titleLeft(titleOnly), GetParam().titleOnlyLeft, 0.1);
    EXPECT_NEAR(titleLeft(1), 84, 0.1) << "the title slide";
    const Value plain = deck.get("Slides").call("Add", slideCount(deck) + 1, blank);
    EXPECT_EQ(plain.get("Shapes").get("Count").toLong(), 0);
}

TEST_F(PowerPointLive, GivesASlideATitleInAPresentationWithoutSuchALayout) {
    const Object deck = open("no-title-layout.pptx");
    const Value added = deck.get("Slides").call("Add", 2, titleOnly);
    EXPECT_EQ(added.get("Layout").toLong(), titleOnly);
    added.get("Shapes").get("Title").get("TextFrame").get("TextRange").put("Text", "Found a place");
    const std::string saved = file("saved.pptx");
    deck.call("SaveCopyAs", saved);
    const std::string xml = part(saved, "ppt/slides/slide2.xml");
    EXPECT_NE(xml.find("type=\"title\""), std::string::npos) << xml;
    EXPECT_NE(xml.find("Found a place"), std::string::npos);
}

TEST_F(PowerPointLive, SetsANewTitleInTheTypeOfTheDecksOwn) {
    const Object deck = open("english.pptx");
    const Value text = deck.get("Slides")
                           .call("Add", 3, titleOnly)
                           .get("Shapes")
                           .get("Title")
                           .get("TextFrame")
                           .get("TextRange");
    for (const char* words : {"First words", "Second words"}) {
        text.put("Text", words);
        EXPECT_NEAR(text.get("Font").get("Size").toDouble(), 28, 0.1) << words;
    }
    deck.call("SaveCopyAs", file("title.pptx"));
    const std::string xml = part(file("title.pptx"), "ppt/slides/slide3.xml");
    EXPECT_NE(xml.find(R"(<a:rPr b="1")"), std::string::npos) << xml;
    EXPECT_EQ(xml.find("<a:spAutoFit/>"), std::string::npos) << "the frame keeps its height";
}

TEST_F(PowerPointLive, BeginsAPresentationOfItsOwnWithoutSlides) {
    const Object deck = app.get("Presentations").call("Add").toObject();
    EXPECT_EQ(slideCount(deck), 0);
    EXPECT_EQ(failureOf([&] { deck.get("Slides").get("Item", 1); }), 9);
    EXPECT_NE(failureOf([&] { app.get("ActiveWindow").get("View").get("Slide"); }), 0);
    EXPECT_NEAR(deck.get("PageSetup").get("SlideWidth").toDouble(), 960, 0.1);
    EXPECT_NEAR(deck.get("PageSetup").get("SlideHeight").toDouble(), 540, 0.1);

    const Value first = deck.get("Slides").call("Add", 1, titleOnly);
    deck.get("Slides").call("Add", 1, blank);
    EXPECT_EQ(slideCount(deck), 2);
    EXPECT_EQ(first.get("SlideIndex").toLong(), 2);
    const Value title = first.get("Shapes").get("Title");
    EXPECT_NEAR(title.get("Left").toDouble() + title.get("Width").toDouble() / 2, 480, 1)
        << "the title spreads over the slide";

    const std::string saved = file("new.pptx");
    deck.call("SaveCopyAs", saved);
    EXPECT_FALSE(part(saved, "ppt/slides/slide2.xml").empty());
    EXPECT_TRUE(part(saved, "ppt/slides/slide3.xml").empty());
}

TEST_F(PowerPointLive, AddsASlideForTheSameCostHoweverManyThereAre) {
    const Object deck = open("english.pptx");
    const auto costOfOne = [&] {
        const std::uint64_t before = remoteCalls();
        deck.get("Slides").call("Add", 3, titleOnly);
        return remoteCalls() - before;
    };
    costOfOne();  // the first one looks for the layout
    const std::uint64_t second = costOfOne();
    for (int i = 0; i < 60; ++i) costOfOne();
    EXPECT_LE(costOfOne(), second);
    EXPECT_LE(second, 14U);
}

TEST_F(PowerPointLive, KeepsTheLastSlideAndSaysSo) {
    const Object deck = open("no-title-layout.pptx");
    EXPECT_EQ(failureOf([&] { slide(deck, 1).call("Delete"); }), 1004);
    EXPECT_EQ(slideCount(deck), 1);
}

TEST_F(PowerPointLive, KnowsTheSlideOfEveryViewOfAWindow) {
    withWindows();
    const Object deck = openWithSlides();
    const Value window = app.get("ActiveWindow");
    for (const std::int32_t view : {9, 7, 3, 6, 9}) {
        window.put("ViewType", view);
        EXPECT_EQ(window.get("ViewType").toLong(), view);
        for (const std::int32_t place : {4, 2}) {
            window.get("View").call("GotoSlide", place);
            EXPECT_EQ(window.get("View").get("Slide").get("SlideIndex").toLong(), place) << view;
            EXPECT_EQ(window.get("Selection").get("SlideRange").get("SlideIndex").toLong(), place)
                << view;
        }
    }
    EXPECT_EQ(failureOf([&] { window.put("ViewType", 77); }), 5);
}

TEST_F(PowerPointLive, PutsASlideInFrontInAWindowAndStaysWhereItWas) {
    withWindows();
    const Object deck = openWithSlides();
    app.get("ActiveWindow").get("View").call("GotoSlide", 3);
    const Value added = deck.get("Slides").call("Add", 1, titleOnly);
    EXPECT_EQ(added.get("SlideIndex").toLong(), 1);
    EXPECT_EQ(app.get("ActiveWindow").get("View").get("Slide").get("SlideIndex").toLong(), 4);
}

TEST_F(PowerPointLive, SaysWhyACopyIsNotWritten) {
    const Object deck = open("english.pptx");
    EXPECT_EQ(failureOf([&] { deck.call("SaveCopyAs", file("copy.docx")); }), 5);
    EXPECT_EQ(failureOf([&] { deck.call("SaveCopyAs", file("nowhere/copy.pptx")); }), 1004);
    EXPECT_FALSE(std::filesystem::exists(file("nowhere")));
}

TEST_F(PowerPointLive, OpensAFileOnce) {
    const Object first = open("english.pptx");
    first.get("Slides").call("Add", 3, blank);
    const Object second = openFile(file("english.pptx"));
    EXPECT_EQ(app.get("Presentations").get("Count").toLong(), 1);
    EXPECT_EQ(slideCount(second), 3);
}

TEST_F(PowerPointLive, OpensNoOtherDocumentAsAPresentation) {
    const std::string table = file("table.csv");
    std::ofstream(table) << "a,b\n1,2\n";
    EXPECT_NE(failureOf([&] { openFile(table); }), 0);
    EXPECT_NE(failureOf([&] { openFile(file("nonesuch.pptx")); }), 0);
    EXPECT_EQ(app.get("Presentations").get("Count").toLong(), 0);
}

}  // namespace

}  // namespace live

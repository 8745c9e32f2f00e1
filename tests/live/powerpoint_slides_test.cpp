#include <fstream>
#include <utility>

#include "live/powerpoint_live_test.h"

namespace live {

namespace {

TEST_F(PowerPointLive, FindsTheLayoutOfANewSlideInEveryDeck) {
    const std::pair<const char*, double> decks[] = {
        {"english.pptx", 72}, {"german.pptx", 72}, {"two-designs.pptx", 90}};
    for (const auto& [name, titleOnlyLeft] : decks) {
        SCOPED_TRACE(name);
        const Object deck = open(name);
        const auto titleLeft = [&](std::int32_t layout) {
            const Value added = deck.get("Slides").call("Add", slideCount(deck) + 1, layout);
            EXPECT_EQ(added.get("Layout").toLong(), layout);
            return added.get("Shapes").get("Title").get("Left").toDouble();
        };
        EXPECT_NEAR(titleLeft(titleOnly), titleOnlyLeft, 0.1);
        EXPECT_NEAR(titleLeft(1), 84, 0.1) << "the title slide";
        const Value plain = deck.get("Slides").call("Add", slideCount(deck) + 1, blank);
        EXPECT_EQ(plain.get("Shapes").get("Count").toLong(), 0);
    }
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
    EXPECT_NE(failureOf([&] { app.get("ActiveWindow").get("View").get("Slide"); }), 0);
    EXPECT_NEAR(deck.get("PageSetup").get("SlideWidth").toDouble(), 960, 0.1);
    EXPECT_NEAR(deck.get("PageSetup").get("SlideHeight").toDouble(), 540, 0.1);

    const Value title = deck.get("Slides").call("Add", 1, titleOnly).get("Shapes").get("Title");
    deck.get("Slides").call("Add", 1, blank);
    EXPECT_NEAR(title.get("Left").toDouble() + title.get("Width").toDouble() / 2, 480, 1)
        << "the title spreads over the slide";
    deck.call("SaveCopyAs", file("new.pptx"));
    EXPECT_FALSE(part(file("new.pptx"), "ppt/slides/slide2.xml").empty());
    EXPECT_TRUE(part(file("new.pptx"), "ppt/slides/slide3.xml").empty());
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

TEST_F(PowerPointLive, SaysWhyACopyIsNotWritten) {
    const Object deck = open("english.pptx");
    EXPECT_EQ(failureOf([&] { deck.call("SaveCopyAs", file("copy.docx")); }), 5);
    EXPECT_EQ(failureOf([&] { deck.call("SaveCopyAs", file("nowhere/copy.pptx")); }), 1004);
    EXPECT_FALSE(std::filesystem::exists(file("nowhere")));
}

TEST_F(PowerPointLive, OpensAFileOnceAndNothingButPresentations) {
    const Object first = open("english.pptx");
    first.get("Slides").call("Add", 3, blank);
    EXPECT_EQ(slideCount(openFile(file("english.pptx"))), 3);
    std::ofstream(file("table.csv")) << "a,b\n1,2\n";
    for (const char* wrong : {"table.csv", "nonesuch.pptx"}) {
        EXPECT_NE(failureOf([&] { openFile(file(wrong)); }), 0) << wrong;
    }
    EXPECT_EQ(app.get("Presentations").get("Count").toLong(), 1);
}

}  // namespace

}  // namespace live

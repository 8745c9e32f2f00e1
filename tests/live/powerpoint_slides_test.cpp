#include <com/sun/star/drawing/XDrawPagesSupplier.hpp>

#include <filesystem>
#include <fstream>

#include "live/live_suite.h"
#include "office/libreoffice/powerpoint/impress_deck.h"

namespace live {

namespace {

using namespace libreoffice;

Value titleText(const Value& slide) {
    return support::at(slide, "Shapes.Title.TextFrame.TextRange");
}

TEST_F(PowerPointLive, FindsTheLayoutOfANewSlideInEveryDeck) {
    const std::pair<const char*, double> decks[] = {
        {"english.pptx", 72}, {"german.pptx", 72}, {"two-designs.pptx", 90}};
    for (const auto& [name, titleOnlyLeft] : decks) {
        SCOPED_TRACE(name);
        const Object deck = open(name);
        expectMembers(addSlide(deck, titleOnly),
                      {{"Layout", titleOnly}, {"Shapes.Title.Left", titleOnlyLeft}});
        expectMembers(addSlide(deck, 1), {{"Layout", 1}, {"Shapes.Title.Left", 84.0}});
        expectMembers(addSlide(deck, blank), {{"Shapes.Count", 0}});
    }
}

TEST_F(PowerPointLive, GivesASlideATitleInAPresentationWithoutSuchALayoutAndKeepsTheLastSlide) {
    const Object deck = open("no-title-layout.pptx");
    const Object added = addSlide(deck, titleOnly);
    EXPECT_EQ(added.get("Layout").toLong(), titleOnly);
    titleText(added).put("Text", "Found a place");
    expectSaved(deck, 2, {"type=\"title\"", "Found a place"});
    added.call("Delete");
    EXPECT_EQ(failureOf([&] { slide(deck, 1).call("Delete"); }), 1004);
    EXPECT_EQ(slideCount(deck), 1);
}

TEST_F(PowerPointLive, DeletesNoOtherSlideInPlaceOfOneThatTheUserHasDeleted) {
    const Object deck = openWithSlides();
    const Object gone = slide(deck, 3);
    const auto pages =
        as<css::drawing::XDrawPagesSupplier>(desk->active<powerpoint::ImpressDeck>()->model())
            ->getDrawPages();
    pages->remove({pages->getByIndex(2), uno::UNO_QUERY_THROW});
    const std::int32_t left = slideCount(deck);
    EXPECT_NE(failureOf([&] { gone.call("Delete"); }), 0);
    EXPECT_EQ(slideCount(deck), left);
}

TEST_F(PowerPointLive, ChangesNoDeckThatIsOpenedForReadingOnly) {
    const std::string file = copyOf(MURVANE_TEST_DECKS, "english.pptx");
    static_cast<void>(desk->load(fileUrl(file), true, {}, true));
    const Object deck = app.get("Presentations").get("Item", 1).toObject();
    EXPECT_TRUE(deck.get("ReadOnly").toBool());
    const std::int32_t slides = slideCount(deck);
    EXPECT_EQ(failureOf([&] { addSlide(deck, titleOnly); }), 1004);
    EXPECT_EQ(slideCount(deck), slides);
    EXPECT_EQ(failureOf([&] { slide(deck, 1).put("Layout", blank); }), 1004);
}

TEST_F(PowerPointLive, SetsANewTitleInTheTypeOfTheDecksOwn) {
    const Object deck = open("english.pptx");
    const Value text = titleText(addSlide(deck, titleOnly));
    for (const char* words : {"First words", "Second words"}) {
        text.put("Text", words);
        EXPECT_NEAR(text.get("Font").get("Size").toDouble(), 28, 0.1) << words;
    }
    // The frame keeps its height.
    expectSaved(deck, 3, {R"(<a:rPr b="1")"}, {"<a:spAutoFit/>"});
}

TEST_F(PowerPointLive, IsAtTheSlideAskedForLastOnceAnythingIsAskedOfTheWindow) {
    const Object deck = openWithSlides();
    const Value window = app.get("ActiveWindow");
    const auto goTo = [&](std::int32_t place) { window.get("View").call("GotoSlide", place); };
    goTo(1);
    for (const std::int32_t place : {2, 1, 3}) {
        goTo(place);
        expectMembers(window, {{"View.Slide.SlideIndex", place}});
    }
    const Value shape = addPicture(slide(deck, 2), 50, 50);
    goTo(3);
    shape.call("Select");
    expectMembers(window, {{"View.Slide.SlideIndex", 2}});
    // It stays where it is if the slide has gone meanwhile.
    goTo(1);
    expectMembers(window, {{"View.Slide.SlideIndex", 1}});
    goTo(3);
    slide(deck, 3).call("Delete");
    expectMembers(window, {{"View.Slide.SlideIndex", 1}});
}

TEST_F(PowerPointLive, BeginsAPresentationOfItsOwnWithoutSlides) {
    const Object deck = app.get("Presentations").call("Add").toObject();
    EXPECT_EQ(slideCount(deck), 0);
    EXPECT_NE(failureOf([&] { app.get("ActiveWindow").get("View").get("Slide"); }), 0);
    expectMembers(deck, {{"PageSetup.SlideWidth", 960.0}, {"PageSetup.SlideHeight", 540.0}});
    const Value title = addSlide(deck, titleOnly).get("Shapes").get("Title");
    deck.get("Slides").call("Add", 1, blank);
    EXPECT_NEAR(title.get("Left").toDouble() + title.get("Width").toDouble() / 2, 480, 1)
        << "the title spreads over the slide";
    deck.call("SaveCopyAs", file("new.pptx"));
    EXPECT_EQ(slideCount(openFile(file("new.pptx"))), 2) << "without the page of LibreOffice's own";
}

TEST_F(PowerPointLive, NumbersNewSlidesWhereTheLastOneIsNumbered) {
    const Object deck = open("english.pptx");
    const auto pages =
        as<css::drawing::XDrawPagesSupplier>(desk->active<powerpoint::ImpressDeck>()->model())
            ->getDrawPages();
    const auto page = [&](std::int32_t place) {
        return uno::Reference<css::drawing::XDrawPage>(pages->getByIndex(place - 1),
                                                       uno::UNO_QUERY_THROW);
    };
    const std::int32_t last = slideCount(deck);
    setProperty(page(last), "IsPageNumberVisible", uno::Any(true));
    for (int i = 0; i < 2; ++i) deck.get("Slides").call("Add", last + 1, titleOnly);
    for (const std::int32_t added : {last + 1, last + 2})
        EXPECT_TRUE(property<bool>(page(added), "IsPageNumberVisible")) << added;
}

TEST_F(PowerPointLive, AddsASlideForTheSameCostHoweverManyThereAre) {
    const Object deck = open("english.pptx");
    const auto addOne = [&] { deck.get("Slides").call("Add", 3, titleOnly); };
    addOne();  // the first one looks for the layout
    const auto second = callsOf(addOne);
    for (int i = 0; i < 60; ++i) addOne();
    EXPECT_LE(callsOf(addOne), second);
    EXPECT_LE(second, 14U);
}

TEST_F(PowerPointLive, SaysWhyACopyIsNotWritten) {
    const Object deck = open("english.pptx");
    EXPECT_EQ(failureOf([&] { deck.call("SaveCopyAs", file("copy.docx")); }), 5);
    EXPECT_EQ(failureOf([&] { deck.call("SaveCopyAs", file("nowhere/copy.pptx")); }), 1004);
    EXPECT_FALSE(std::filesystem::exists(file("nowhere")));
}

TEST_F(PowerPointLive, OpensAFileOnceAndNothingButPresentations) {
    addSlide(open("english.pptx"), blank);
    EXPECT_EQ(slideCount(openFile(file("english.pptx"))), 3);
    std::ofstream(file("table.csv")) << "a,b\n1,2\n";
    for (const char* wrong : {"table.csv", "nonesuch.pptx"}) {
        EXPECT_NE(failureOf([&] { openFile(file(wrong)); }), 0) << wrong;
    }
    EXPECT_EQ(app.get("Presentations").get("Count").toLong(), 1);
}

}  // namespace

}  // namespace live

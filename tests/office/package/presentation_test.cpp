#include <fmt/format.h>
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "office/failure.h"
#include "office/package/office_file.h"
#include "office/package/presentation/deck_file.h"
#include "office/package/presentation/file_deck.h"
#include "support/package_edit.h"
#include "support/png_file.h"
#include "support/temporary_folder.h"
#include "support/written_decks.h"

namespace {

using namespace office::package;
using office::Object;
using office::Value;
using support::edit;
using Texts = std::vector<std::string>;

const std::string mainPart = "/ppt/presentation.xml";
const std::string firstSlide = "/ppt/slides/slide1.xml";

/// The texts between these two, in order.
Texts between(const std::string& text, const std::string& before, const std::string& after) {
    Texts found;
    for (auto at = text.find(before); at != std::string::npos; at = text.find(before, at)) {
        at += before.size();
        found.push_back(text.substr(at, text.find(after, at) - at));
    }
    return found;
}

Value shapesOf(const Object& deck, int slide) {
    return deck.get("Slides").get("Item", slide).get("Shapes");
}

Value titleOf(const Object& deck, int slide) {
    return shapesOf(deck, slide).get("Title").get("TextFrame").get("TextRange");
}

class PresentationFile : public testing::Test {
protected:
    Object open(Package package) {
        const std::string file = freshFile(".pptx");
        package.save(file);
        return app.get("Presentations").call("Open", file).toObject();
    }
    /// What a presentation is saved as.
    Package saved(const Object& deck, const std::string& ending = ".pptx") {
        const std::string file = freshFile(ending);
        deck.call("SaveCopyAs", file);
        return Package::open(file);
    }
    /// A presentation of so many slides, titled "1", "2", ...
    Package deckOf(int slides) {
        const Object deck = open(support::emptyDeck());
        for (int i = 1; i <= slides; ++i) addSlide(deck, i, std::to_string(i));
        return saved(deck);
    }
    static void addSlide(const Object& deck, int place, const std::string& title) {
        deck.get("Slides").call("Add", place, powerpoint::layout::titleOnly);
        titleOf(deck, place).put("Text", title);
    }
    Object addPicture(const Object& deck, int slide) {
        const std::string file = freshFile(".png");
        support::writeBytes(file, support::pngPictureOfPoints(24, 15));
        return shapesOf(deck, slide).call("AddPicture", file, 0, -1, 0, 0, -1, -1).toObject();
    }
    static Texts titlesOf(const Object& deck) {
        Texts titles;
        for (int i = 1; i <= deck.get("Slides").get("Count").toLong(); ++i)
            titles.push_back(titleOf(deck, i).get("Text").toText());
        return titles;
    }

    support::TemporaryFolder folder;
    Object app = powerPointOfFiles({[](const std::string&, const office::Font&, auto) {
                                        return office::Size{100, 20};
                                    },
                                    {}});

private:
    std::string freshFile(const std::string& ending) {
        return folder.file(std::to_string(++files_) + ending);
    }
    int files_ = 0;
};

TEST_F(PresentationFile, KeepsTextsWhateverTheyHold) {
    const std::pair<std::string, std::string> titles[] = {
        {"<a> & \"b\" ]]>", "<a> & \"b\" ]]>"},
        {"Größe 😀\ttab", "Größe 😀\ttab"},
        {std::string("n\x01o\x1F \0x", 7), "no x"},
        {"\xEF\xBF\xBE\xFF\xED\xA0\x80half \xC3", "half "},
        {"one\rtwo\r", "one\rtwo\r"},
        {"one\r\ntwo\nthree", "one\rtwo\rthree"},
        {"line\vbreak\v\v", "line\vbreak\v\v"},
        {"  kept  blanks ", "  kept  blanks "},
        {" ", " "},
        {"", ""},
    };
    Object deck = open(support::emptyDeck());
    Texts expected;
    for (const auto& [text, read] : titles) {
        expected.push_back(read);
        const int place = static_cast<int>(expected.size());
        addSlide(deck, place, text);
        const Object picture = addPicture(deck, place);
        for (const char* member : {"Name", "AlternativeText"}) picture.put(member, text);
    }
    Package package = saved(deck);
    EXPECT_TRUE(package.has("/ppt/media/image1.png"));
    EXPECT_FALSE(package.has("/ppt/media/image2.png")) << "equal ones are one";
    deck = open(std::move(package));
    EXPECT_EQ(titlesOf(deck), expected);
    for (const int slide : {1, 2, 3, 4}) {
        for (const char* member : {"Name", "AlternativeText"})
            EXPECT_EQ(shapesOf(deck, slide).get("Item", 2).get(member).toText(),
                      titles[slide - 1].second);
    }
}

TEST_F(PresentationFile, KeepsShapesThatAreHeldHoweverManySlidesFollow) {
    const Object deck = open(support::emptyDeck());
    addSlide(deck, 1, "first");
    addSlide(deck, 2, "second");
    const Object picture = addPicture(deck, 1);
    deck.get("Slides").get("Item", 2).call("Delete");
    Texts expected = {"first"};
    for (int place = 2; place < 20; ++place) {
        expected.push_back(std::to_string(place));
        addSlide(deck, place, expected.back());
    }
    picture.put("Name", "held");
    const Object again = open(saved(deck));
    EXPECT_EQ(titlesOf(again), expected);
    EXPECT_EQ(shapesOf(again, 1).get("Item", 2).get("Name").toText(), "held");
}

TEST_F(PresentationFile, DressesATitleAsTheLayoutShowsItWhereNoStyleSaysIt) {
    for (const bool hasStyle : {true, false}) {
        Package package = support::emptyDeck();
        edit(package, "/ppt/slideLayouts/slideLayout6.xml", R"(<a:rPr lang="en-US"/>)",
             R"(<a:rPr lang="en-US" sz="2300" b="1"/>)");
        if (!hasStyle) edit(package, "/ppt/slideMasters/slideMaster1.xml", "titleStyle", "other");
        const Object deck = open(std::move(package));
        addSlide(deck, 1, "Revenue");
        EXPECT_EQ(titleOf(deck, 1).get("Font").get("Size").toDouble(), hasStyle ? 30 : 23);
    }
}

TEST_F(PresentationFile, ShrinksATitleThatIsHigherThanItsFrame) {
    const std::string shrinks = "<a:normAutofit/>";
    const std::string lines = "90000";
    struct {
        std::string title, fit, spacing, expected;
    } const rows[] = {
        {"short", shrinks, lines, "<a:bodyPr/>"},
        {std::string(60, 'x'), shrinks, lines, R"(<a:normAutofit fontScale="90000"/>)"},
        {std::string(60, 'x'), "<a:noAutofit/>", lines, "<a:bodyPr/>"},
        {std::string(60, 'x'), "", lines, "<a:bodyPr/>"},
        {std::string(30, 'x'), shrinks, "200000", R"(<a:normAutofit fontScale="70000"/>)"},
        {std::string(900, 'x'), shrinks, lines, R"(<a:normAutofit fontScale="30000"/>)"},
    };
    app = powerPointOfFiles(
        {[](const std::string& words, const office::Font& font, auto width) {
             const double length = static_cast<double>(words.size()) * font.sizePt / 2;
             return office::Size{length, std::ceil(length / *width) * font.sizePt * 1.25};
         },
         {}});
    for (const auto& row : rows) {
        Package package = support::emptyDeck();
        const std::string master = "/ppt/slideMasters/slideMaster1.xml";
        edit(package, master, shrinks, row.fit);
        edit(package, master, R"(<a:spcPct val="90000")", "<a:spcPct val=\"" + row.spacing + "\"");
        const Object deck = open(std::move(package));
        addSlide(deck, 1, row.title);
        const std::string slide = saved(deck).read(firstSlide);
        EXPECT_NE(slide.find(row.expected), std::string::npos) << row.title << row.fit << slide;
        // What is short again stands as the master says.
        titleOf(deck, 1).put("Text", "short");
        EXPECT_EQ(saved(deck).read(firstSlide).find("fontScale") == std::string::npos,
                  row.spacing == lines);
    }
}

TEST_F(PresentationFile, PutsATitleWhereNoLayoutHasAPlaceForOne) {
    Package package = support::emptyDeck();
    for (int layout = 1; layout <= 11; ++layout) {
        const std::string part = fmt::format("/ppt/slideLayouts/slideLayout{}.xml", layout);
        std::string text = package.read(part);
        for (const char* kind : {R"(<p:ph type="title")", R"(<p:ph type="ctrTitle")"})
            text = office::replaceAll(text, kind, R"(<p:ph type="body")");
        package.replace(part, text);
    }
    const Object deck = open(std::move(package));
    addSlide(deck, 1, "Revenue");
    const Value title = shapesOf(deck, 1).get("Title");
    EXPECT_NEAR(title.get("Top").toDouble(), 18, 0.01) << "where the master has its own";
    const std::string slide = saved(deck).read(firstSlide);
    EXPECT_NE(slide.find("<a:off"), std::string::npos) << "nothing is inherited past the layout";
}

TEST_F(PresentationFile, ChangesTheLayoutOfASlideThatHasMoreThanThat) {
    const Object deck = open(deckOf(1));
    addPicture(deck, 1);
    const Value slide = deck.get("Slides").get("Item", 1);
    slide.put("Layout", powerpoint::layout::blank);
    EXPECT_EQ(slide.get("Layout").toLong(), powerpoint::layout::blank);
    Package package = saved(deck);
    EXPECT_EQ(package.relationshipsOf(firstSlide).all().size(), 2U);
    EXPECT_NE(package.relationshipsOf(firstSlide).ofType("image"), nullptr);
}

TEST_F(PresentationFile, ShowsTheSlideNumberInThePlaceOfTheNewLayout) {
    Package package = deckOf(1);
    edit(package, firstSlide, "</p:spTree>",
         R"(<p:sp><p:nvSpPr><p:cNvPr id="9" name="N"/><p:cNvSpPr/><p:nvPr>)"
         R"(<p:ph type="sldNum" idx="4"/></p:nvPr></p:nvSpPr><p:spPr/></p:sp></p:spTree>)");
    const Object deck = open(std::move(package));
    addSlide(deck, 2, "next");
    const std::string slide = saved(deck).read("/ppt/slides/slide2.xml");
    EXPECT_EQ(between(slide, R"(<p:ph type="sldNum" idx=")", "\""), Texts{"12"});
}

TEST_F(PresentationFile, SaysInItsXmlHowLabelsAndPicturesLook) {
    const Package before = deckOf(1);
    const Object deck = open(deckOf(1));
    const Value frame = shapesOf(deck, 1).call("AddLabel", 1, 20, 518, 8, 28).get("TextFrame");
    frame.put("WordWrap", false);
    frame.get("TextRange").put("Text", "one\vtwo");
    const Value font = frame.get("TextRange").get("Font");
    font.put("Name", "Tahoma");
    font.put("Size", 10);
    font.get("Color").put("RGB", 0xB2A190);
    const Object picture = addPicture(deck, 1);
    picture.put("AutoShapeType", 5);
    picture.get("Adjustments").put("Item", 1, 0.05);
    picture.get("Shadow").put("Blur", 25);
    picture.get("Shadow").put("OffsetX", 3);
    picture.get("Shadow").put("OffsetY", -1e-9);
    picture.get("Reflection").put("Size", 20);
    picture.get("Reflection").put("Offset", 1);
    const Package after = saved(deck);
    for (const std::string& part : before.parts()) {
        const bool mayChange = part.find("slide1.xml") != std::string::npos;
        EXPECT_TRUE(mayChange || after.read(part) == before.read(part)) << part;
    }
    const std::string xml = after.read(firstSlide);
    const std::string characters =
        "<a:rPr sz=\"1000\"><a:solidFill><a:srgbClr val=\"90A1B2\"/></a:solidFill>"
        "<a:latin typeface=\"Tahoma\"/><a:ea typeface=\"Tahoma\"/><a:cs typeface=\"Tahoma\"/>"
        "</a:rPr>";
    for (const std::string& markup :
         Texts{fmt::format("<a:r>{0}<a:t>one</a:t></a:r><a:br>{0}</a:br>", characters),
               "<a:ext cx=\"1452880\" cy=\"345440\"/>",
               "<a:bodyPr wrap=\"none\"><a:spAutoFit/></a:bodyPr>",
               "prst=\"roundRect\"><a:avLst><a:gd name=\"adj\" fmla=\"val 5000\"/>",
               "<a:effectLst><a:outerShdw blurRad=\"317500\" dist=\"38100\" dir=\"0\"",
               "endPos=\"20000\" dist=\"12700\" dir=\"5400000\" sy=\"-100000\""})
        EXPECT_NE(xml.find(markup), std::string::npos) << markup << "\n" << xml;
    support::keepDecks(folder.path(), {});
}

TEST_F(PresentationFile, PutsSlidesIntoTheOrderTheSectionsAndTheCount) {
    Package package = deckOf(3);
    edit(package, mainPart, "</p:presentation>", R"(
        <p:custShowLst><p:custShow name="s" id="0"><p:sldLst><p:sld r:id="rId6"/><p:sld r:id="rId7"/>
        </p:sldLst></p:custShow></p:custShowLst><p:extLst><p:ext uri="x">
        <s:sectionLst xmlns:s="http://schemas.microsoft.com/office/powerpoint/2010/main">
        <s:section><s:sldIdLst><s:sldId id="256"/><s:sldId id="257"/></s:sldIdLst></s:section>
        <s:section><s:sldIdLst><s:sldId id="258"/></s:sldIdLst></s:section>
        </s:sectionLst></p:ext></p:extLst></p:presentation>)");
    const Object deck = open(std::move(package));
    addSlide(deck, 2, "second");
    addSlide(deck, 5, "last");
    deck.get("Slides").get("Item", 1).call("Delete");
    package = saved(deck);
    const std::string xml = package.read(mainPart);
    EXPECT_NE(xml.find("</p:sldMasterIdLst><p:sldIdLst>"), std::string::npos) << "the new list";
    EXPECT_EQ(between(xml, "<p:sldId id=\"", "\""), (Texts{"259", "257", "258", "260"}));
    const Texts sections = between(xml, "<s:section>", "</s:section>");
    EXPECT_EQ(between(sections.at(0), "sldId id=\"", "\""), (Texts{"259", "257"}));
    EXPECT_EQ(between(sections.at(1), "sldId id=\"", "\""), (Texts{"258", "260"}));
    EXPECT_EQ(between(xml, "<p:sld r:id=\"", "\""), Texts{"rId7"});
    EXPECT_EQ(between(package.read("/docProps/app.xml"), "<Slides>", "<"), Texts{"4"});
    EXPECT_FALSE(package.has(firstSlide));
    EXPECT_EQ(titlesOf(open(std::move(package))), (Texts{"second", "2", "3", "last"}));
}

TEST_F(PresentationFile, GivesNewSlidesALayoutOfTheMasterOfTheLastOne) {
    const std::string used = "/ppt/other/used.xml";
    const std::string wanted = "/ppt/other/wanted.xml";
    const std::string master = "/ppt/other/master.xml";
    const std::string type = " type=\"titleOnly\"";
    // By its type, by its name, by what it holds.
    for (const Texts& unsaid : {Texts{}, Texts{type}, Texts{type, " name=\"Title Only\""}}) {
        Package package = deckOf(1);
        for (const auto& [part, copy] : {std::pair("/ppt/slideMasters/slideMaster1.xml", master),
                                         {"/ppt/slideLayouts/slideLayout1.xml", used},
                                         {"/ppt/slideLayouts/slideLayout6.xml", wanted}}) {
            package.add(copy, package.contentTypeOf(part), package.read(part));
            if (copy == master) continue;
            package.relationshipsOf(copy).add("slideMaster", master);
            package.relationshipsOf(master).add("slideLayout", copy);
        }
        for (const std::string& text : unsaid) edit(package, wanted, text, "");
        Relationships& ofSlide = package.relationshipsOf(firstSlide);
        ofSlide.remove(std::string(ofSlide.ofType("slideLayout")->id));
        ofSlide.add("slideLayout", used);
        const Object deck = open(std::move(package));
        addSlide(deck, 1, "new");
        package = saved(deck);
        const Relationships& ofNew = package.relationshipsOf("/ppt/slides/slide2.xml");
        EXPECT_EQ(ofNew.partOf(ofNew.all().at(0)), wanted);
    }
}

TEST_F(PresentationFile, ReadsAndAddsUnderWhateverPrefixesItHas) {
    // A default namespace, another one, and one of ours for something else.
    for (const auto& [a, p] : {std::pair("d:", ""), {"", "q:"}, {"z:", "a:"}}) {
        Package package = deckOf(2);
        for (const std::string& part : package.parts()) {
            if (!part.ends_with(".xml") || !part.starts_with("/ppt/")) continue;
            std::string xml = package.read(part);
            const auto rename = [&](const std::string& from, const std::string& to) {
                xml = office::replaceAll(xml, from, to);
            };
            for (const auto& [from, to] :
                 {std::pair<std::string, std::string>("a:", a), {"p:", p}}) {
                rename("<" + from, "<" + to);
                rename("</" + from, "</" + to);
                rename("xmlns:" + from.substr(0, 1),
                       to.empty() ? "xmlns" : "xmlns:" + to.substr(0, 1));
            }
            package.replace(part, xml);
        }
        Object deck = open(std::move(package));
        titleOf(deck, 1).put("Text", "changed");
        addPicture(deck, 1).put("AutoShapeType", 5);
        addSlide(deck, 2, "new");
        deck = open(saved(deck));
        EXPECT_EQ(titlesOf(deck), (Texts{"changed", "new", "2"})) << p;
        EXPECT_EQ(shapesOf(deck, 1).get("Item", 2).get("AutoShapeType").toLong(), 5) << p;
        EXPECT_GT(shapesOf(deck, 1).get("Title").get("Width").toDouble(), 0) << p;
    }
}

TEST_F(PresentationFile, TakesAlternativesOfAShapeForOneShape) {
    Package package = deckOf(1);
    edit(package, firstSlide, "</p:spTree>", R"(
        <c:AlternateContent xmlns:c="http://schemas.openxmlformats.org/markup-compatibility/2006">
        <c:Choice xmlns:x="urn:x" Requires="x"><p:cxnSp><p:nvCxnSpPr><p:cNvPr id="7" name="new"/>
        <p:cNvCxnSpPr/><p:nvPr/></p:nvCxnSpPr><p:spPr/></p:cxnSp></c:Choice>
        <c:Fallback><p:sp><p:nvSpPr><p:cNvPr id="9" name="old"/><p:cNvSpPr/><p:nvPr/></p:nvSpPr>
        <p:spPr/></p:sp></c:Fallback></c:AlternateContent></p:spTree>)");
    const Object deck = open(std::move(package));
    EXPECT_EQ(addPicture(deck, 1).get("Name").toText(), "Picture 9");
    EXPECT_EQ(shapesOf(deck, 1).get("Count").toLong(), 3);
}

TEST_F(PresentationFile, BecomesThePresentationThatItsEndingSays) {
    const std::string standard = "application/vnd.openxmlformats-officedocument.presentationml.";
    const std::string plain = standard + "presentation.main+xml";
    const std::string macros = "application/vnd.ms-powerpoint.presentation.macroEnabled.main+xml";
    for (const auto& [type, ending, becomes] :
         {std::tuple(standard + "template.main+xml", ".pptx", plain),
          {standard + "slideshow.main+xml", ".pptx", plain},
          {"application/vnd.ms-powerpoint.template.macroEnabled.main+xml", ".PPTM", macros},
          {macros, ".pptx", plain},
          {plain, ".pptm", macros}}) {
        Package package = deckOf(1);
        package.setContentType(mainPart, type);
        package.add("/ppt/vbaProject.bin", "application/vnd.ms-office.vbaProject", "macros");
        package.relationshipsOf(mainPart).add(macroProject, "/ppt/vbaProject.bin");
        package = saved(open(std::move(package)), ending);
        EXPECT_EQ(package.contentTypeOf(mainPart), becomes);
        EXPECT_EQ(package.has("/ppt/vbaProject.bin"), becomes == macros) << type;
        EXPECT_EQ(package.relationshipsOf(mainPart).ofType(macroProject) != nullptr,
                  becomes == macros);
    }
}

TEST_F(PresentationFile, SaysWhatCannotBeWrittenAndLeavesNothingOfIt) {
    const Object deck = open(deckOf(1));
    std::filesystem::create_directory(folder.path() / "folder.pptx");
    const auto names = folder.names();
    for (const auto& [name, number] :
         {std::pair("missing/Out.pptx", 1004), {"folder.pptx", 1004}, {"Out.odp", 5}, {"Out", 5}}) {
        try {
            deck.call("SaveCopyAs", folder.file(name));
            ADD_FAILURE() << name;
        } catch (const office::Failure& failure) {
            EXPECT_EQ(failure.number(), number) << name;
        }
    }
    EXPECT_EQ(folder.names(), names);
    const std::int32_t count = app.get("Presentations").get("Count").toLong();
    app.get("Presentations").call("Open", deck.get("FullName"));
    EXPECT_EQ(app.get("Presentations").get("Count").toLong(), count) << "not opened twice";
}

}  // namespace

#include "office/package/office_file.h"
#include "office/package/presentation/file_deck.h"
#include "office/package/zip_bytes.h"
#include "run_stage.h"
#include "support/package_edit.h"
#include "support/written_decks.h"

namespace {

using office::package::FileRules;
using office::package::Package;
using support::edit;

const std::string mainPart = "/ppt/presentation.xml";
const std::string macroType = "application/vnd.ms-powerpoint.presentation.macroEnabled.main+xml";

/// Runs whose deck is a file of its own format, which the suite never sees.
class DeckFileTest : public RunStage {
protected:
    DeckFileTest() {
        makeDeck([](Package&) {});
    }

    /// A deck with one slide, and what `change` makes of it.
    void makeDeck(const std::function<void(Package&)>& change) {
        const std::string plain = temporary.file("Plain.pptx");
        const auto decks =
            std::make_shared<office::package::FileDecks>(std::make_shared<FileRules>());
        const auto made = decks->create(false);
        made->addSlide(1, office_double::model::layout::titleOnly);
        made->saveCopy(plain);
        Package package = Package::open(plain);
        change(package);
        std::filesystem::remove(deckFile);
        package.save(deckFile);
    }
    static void addMacros(Package& package) {
        package.setContentType(mainPart, macroType);
        package.add("/ppt/vbaProject.bin", "application/vnd.ms-office.vbaProject", "macros");
        package.relationshipsOf(mainPart).add(office::package::macroProject, "/ppt/vbaProject.bin");
    }
};

TEST_F(DeckFileTest, GetsTheSlidesAndIsLeftAsItWas) {
    const std::string before = folder.read("Deck.pptx");
    ASSERT_EQ(exportWith({"--titles", "--source"}), 0) << console.error;
    EXPECT_EQ(slidesIn("Out.pptx"), 6);
    EXPECT_EQ(folder.read("Deck.pptx"), before);
    ASSERT_EQ(run({bookFile, "--output", folder.file("New.pptx")}), 0) << console.error;
    EXPECT_EQ(slidesIn("New.pptx"), 5) << "a new one begins without slides";
    EXPECT_EQ(suite->log().count("Presentations.Open"), 0U);
    support::keepDecks(folder.path(), {});
}

TEST_F(DeckFileTest, IsAddedToWithAWordWhereSomethingWillNotHold) {
    struct Case {
        std::function<void(Package&)> change;
        std::string output;
        std::string remark;
    };
    const auto sign = [](Package& package) {
        package.add("/origin.sigs", "application/x", "");
        package.relationshipsOf("/").add(office::package::signatureOrigin, "/origin.sigs");
    };
    for (const Case& it :
         {Case{[](Package&) {}, "Plain.pptm", ""}, Case{addMacros, "Out.pptm", ""},
          Case{addMacros, "Out.pptx", " has macros, and "},
          Case{sign, "Out.pptx", " is signed. Its signature will not hold for "}}) {
        makeDeck(it.change);
        const std::string out = folder.file(it.output);
        ASSERT_EQ(run({bookFile, "--into", deckFile, "--output", out, "--overwrite"}), 0)
            << console.error;
        EXPECT_EQ(slidesIn(it.output), 6);
        EXPECT_EQ(Package::open(out).contentTypeOf(mainPart) == macroType, out.ends_with("m"));
        const std::string done = "Exported 5 items to " + out + "\n";
        EXPECT_TRUE(it.remark.empty() ? console.error == done : console.errorHas(it.remark));
    }
}

TEST_F(DeckFileTest, GoesThroughTheSuiteWhereItIsStrict) {
    makeDeck([](Package& package) {
        edit(package, mainPart, "http://schemas.openxmlformats.org/presentationml/2006/main",
             "http://purl.oclc.org/ooxml/presentationml/main");
    });
    ASSERT_EQ(exportWith(), 0) << console.error;
    EXPECT_TRUE(console.errorHas("is a strict Open XML presentation")) << console.error;
    EXPECT_EQ(deck->slideCount(), 7) << "as the suite reads it";
    EXPECT_EQ(run({bookFile, "--into", deckFile, "--output", folder.file("Out.pptm")}), 2);
    EXPECT_TRUE(console.errorHas("the suite writes no .pptm")) << console.error;
    for (const std::vector<std::string>& words :
         {std::vector<std::string>{"--format", "embedded", "--embed-only-sheet", "--overwrite"},
          {"--format", "linked", "--links", "relative", "--overwrite"}}) {
        EXPECT_EQ(exportWith(words), 2);
        EXPECT_TRUE(console.errorHas("written without the suite")) << console.error;
    }
}

TEST_F(DeckFileTest, IsRefusedAheadOfTheSuiteWhereNothingOpensIt) {
    const std::string whole = folder.read("Deck.pptx");
    for (const auto& [bytes, reason] :
         {std::pair(zip_bytes::compoundFile({"EncryptedPackage"}), "encrypted with a password"),
          std::pair(whole.substr(0, whole.size() / 2), "Deck.pptx can't be opened: ")}) {
        folder.write("Deck.pptx", bytes);
        EXPECT_EQ(exportWith(), 1);
        EXPECT_TRUE(console.errorHas(reason)) << console.error;
    }
    EXPECT_EQ(suitesStarted, 0);
    EXPECT_TRUE(hasOnlyInputs());
}

TEST_F(DeckFileTest, ReplacesAnOutputAsAWholeOrNotAtAll) {
    folder.write("Out.pptx", "old");
    const auto spoil = [](const char* part, const char* text) {
        return [=](Package& package) { edit(package, part, text, "<"); };
    };
    makeDeck(spoil("/ppt/slides/slide1.xml", "<p:cSld>"));
    EXPECT_EQ(exportWith({"--overwrite"}), 1);
    EXPECT_TRUE(console.errorHas("its part /ppt/slides/slide1.xml is no XML")) << console.error;
    EXPECT_EQ(folder.read("Out.pptx"), "old");
    // What only tells about the deck keeps nobody from working on it.
    makeDeck(spoil("/docProps/app.xml", "<Slides>"));
    EXPECT_EQ(exportWith({"--overwrite"}), 0);
    EXPECT_EQ(slidesIn("Out.pptx"), 6);
    EXPECT_EQ(folder.names().size(), 3U);
}

}  // namespace

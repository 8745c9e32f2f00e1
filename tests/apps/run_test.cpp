#include <fcntl.h>
#include <unistd.h>

#include "office/file_address.h"
#include "office/package/document/file_documents.h"
#include "run_stage.h"

namespace {

using Texts = std::vector<std::string>;
using office_double::Workbook;

class RunTest : public RunStage {};

TEST_F(RunTest, ExportsWhatTheWorkbookHasAndSavesItUnderTheNewName) {
    ASSERT_EQ(exportWith(), 0) << console.error;
    EXPECT_EQ(pictures(), (Texts{"Chart 1", "Chart 2", "Total", "Chart 1", "Overview"}));
    EXPECT_EQ(deck->slideCount(), 7);
    EXPECT_EQ(console.error, "Exported 5 items to " + folder.file("Out.pptx") + "\n");
    EXPECT_EQ(folder.names(), (std::set<std::string>{"Book.xlsx", "Deck.pptx", "Out.pptx"}));
    EXPECT_EQ(folder.read("Book.xlsx") + ", " + folder.read("Deck.pptx"), "a workbook, a deck");
    EXPECT_EQ(suite->log().count("Workbook.Save") + suite->log().count("Presentation.Save"), 0U);
    EXPECT_EQ(suite->excel().activeWorkbook(), nullptr);
    EXPECT_TRUE(suite->powerPoint().open().empty());
    EXPECT_EQ(slidesIn("Out.pptx"), 7);
}

TEST_F(RunTest, OneLoadServesSeveralDestinationsAndOneThatFailsTakesTheOthersAlong) {
    const std::vector<std::string> words = {bookFile,
                                            "--into",
                                            deckFile,
                                            "--output",
                                            folder.file("Out.pptx"),
                                            "--output",
                                            folder.file("Out.docx")};
    ASSERT_EQ(run(words), 0) << console.error;
    EXPECT_EQ(suite->log().count("Workbooks.Open"), 1U);
    EXPECT_EQ(console.error, fmt::format("Exported 5 items to {}\nExported 5 items to {}\n",
                                         folder.file("Out.pptx"), folder.file("Out.docx")));
    const auto document = std::make_shared<office::package::FileDocuments>(
                              std::make_shared<office::package::FileRules>())
                              ->load(folder.file("Out.docx"), false);
    EXPECT_EQ(document->objectCount(office::model::word::Anchoring::Inline), 5);
    EXPECT_EQ(slidesIn("Out.pptx"), 7);

    std::filesystem::remove(folder.file("Out.pptx"));
    std::filesystem::remove(folder.file("Out.docx"));
    suite->failures().fail("Chart.CopyPicture", 2);
    EXPECT_EQ(run(words), 1);
    EXPECT_TRUE(hasOnlyInputs());
    EXPECT_TRUE(console.errorHas("Could not export \"Chart 2\" on sheet \"North\""));
}

TEST_F(RunTest, ListsTheItemsWithoutTouchingAnything) {
    ASSERT_EQ(run({bookFile, "--list"}), 0) << console.error;
    EXPECT_EQ(std::count(console.out.begin(), console.out.end(), '\n'), 6) << console.out;
    EXPECT_EQ(console.error, "");
    EXPECT_TRUE(hasOnlyInputs());
}

TEST_F(RunTest, TakesItemsOrderCaptionsPlacementAndStyleAsTheyAreAskedFor) {
    const std::string captions =
        folder.write("c.csv", "item,caption\nTotal,\"All, in all\"\nOverview,The whole\n");
    ASSERT_EQ(exportWith({"--items", "Total,Chart 1@South,Overview", "--order", "Overview,Total",
                          "--captions", captions, "--titles", "--style", "shadow", "--source",
                          "--top", "0.5", "--width", "0.25", "--left", "0.1"}),
              0)
        << console.error;
    EXPECT_EQ(pictures(), (Texts{"The whole", "All, in all", "Chart 1"}));
    EXPECT_EQ(deck->slide(4).title().text(), "All, in all");
    const auto shapes = deck->slide(5).shapes();
    ASSERT_EQ(shapes.size(), 3U);
    EXPECT_TRUE(shapes[1].hasShadow());
    EXPECT_EQ(shapes[2].text(), bookFile);
    const auto& box = shapes[1].box();
    EXPECT_EQ(fmt::format("{} {} {}", box.top, box.left, box.width), "270 96 240");
}

TEST_F(RunTest, PredefinedSlidesComeFromTheCaptionsFile) {
    const std::string captions = folder.write("c.csv", "item,sheet,slide\nTotal,,2\nOverview,,1\n");
    ASSERT_EQ(
        exportWith({"--captions", captions, "--slides", "predefined", "--items", "Total,Overview"}),
        0)
        << console.error;
    EXPECT_EQ(deck->slideCount(), 2);
    EXPECT_EQ(pictures(), (Texts{"Overview", "Total"}));
}

TEST_F(RunTest, OnATerminalTheProgressIsDrawnAndGoneAtTheEnd) {
    console.isTerminal = true;
    ASSERT_EQ(exportWith(), 0);
    EXPECT_TRUE(console.errorHas("Exporting item 3 of 5  60%"));
    EXPECT_TRUE(console.errorHas("\r\x1b[KExported 5 items")) << console.error;
    ASSERT_EQ(exportWith({"--quiet", "--overwrite"}), 0);
    EXPECT_EQ(console.error, "");
}

TEST_F(RunTest, WhatIsWrongWithTheFilesIsFoundOutBeforeASuiteStarts) {
    const std::string out = folder.file("Out.pptx");
    const std::pair<std::vector<std::string>, const char*> cases[] = {
        {{bookFile, "--output", folder.file("missing/Out.pptx")},
         "missing/Out.pptx can't be written"},
        {{bookFile, "--output", folder.file("Out.odp")}, "Out.odp"},
        {{bookFile, "--output", folder.file("Out.odt")}, "only a copy of a document of that kind"},
        {{folder.file("None.xlsx"), "--output", out}, "None.xlsx can't be read"},
        {{folder.write("List.CSV", "1;2"), "--list"}, "List.CSV is a table as text"},
        {{bookFile, "--into", folder.file("None.pptx"), "--output", out}, "None.pptx"},
        {{bookFile, "--into", deckFile, "--output", deckFile, "--overwrite"}, "never written over"},
        {{bookFile, "--output", out, "--captions", folder.write("c.csv", "name\n")},
         "c.csv, line 1: unknown column"},
    };
    for (const auto& [words, said] : cases) {
        EXPECT_EQ(run(words), 2) << said;
        EXPECT_TRUE(console.errorHas(said)) << console.error;
    }
    EXPECT_EQ(suitesStarted, 0);
}

TEST_F(RunTest, AnExistingOutputIsReplacedOnlyWhenToldSo) {
    folder.write("Out.pptx", "old");
    EXPECT_EQ(exportWith(), 2);
    EXPECT_EQ(folder.read("Out.pptx"), "old");
    EXPECT_EQ(exportWith({"--overwrite"}), 0);
    EXPECT_EQ(slidesIn("Out.pptx"), 7);
}

TEST_F(RunTest, AWorkbookBearsTheNameOfTheLinkThatItIsNamedBy) {
    namespace fs = std::filesystem;
    fs::create_directories(folder.path() / "deep/inner");
    fs::create_directory_symlink("deep/inner", folder.path() / "short");
    fs::create_symlink("../Book.xlsx", folder.path() / "deep/this month.xlsx");
    const std::string link = folder.file("deep/this month.xlsx");
    suite->excel().addFile(link, [](office_double::Workbook& book) { fill(book); });
    EXPECT_EQ(run({folder.file("short/.././this month.xlsx"), "--list", "--json"}), 0);
    EXPECT_NE(console.out.find(link), std::string::npos) << console.out << console.error;
    EXPECT_EQ(run({link, "--output", folder.file("Out.pptx"), "--overwrite"}), 0);
    EXPECT_EQ(office::fileAddress(link, folder.path() / "deep/inner"), "../this%20month.xlsx");
}

TEST_F(RunTest, AWorkbookThatAShellHandsOnIsOpenedByItsName) {
    const int handed = ::open(bookFile.c_str(), O_RDONLY);
    const std::string number = std::to_string(handed);
    for (const char* place : {"/dev/fd/", "/proc/self/fd/"}) {
        EXPECT_EQ(run({place + number, "--list", "--json"}), 0);
        EXPECT_NE(console.out.find(bookFile), std::string::npos) << console.out << console.error;
    }
    std::filesystem::remove(bookFile);
    EXPECT_EQ(run({"/dev/fd/" + number, "--list"}), 1);
    EXPECT_TRUE(console.errorHas("has lost its name")) << console.error;
    ::close(handed);
}

TEST_F(RunTest, AFileThatTheSuiteCannotOpenIsNamed) {
    const std::string other = folder.write("Other.xlsx", "no workbook");
    EXPECT_EQ(run({other, "--list"}), 1);
    EXPECT_EQ(console.error, "murvane-export: There is no workbook " + other + ".\n");
    suite->failures().fail("Workbooks.Open");
    EXPECT_EQ(run({bookFile, "--list"}), 1);
    EXPECT_TRUE(console.errorHas("Book.xlsx can't be opened: ")) << console.error;
}

}  // namespace

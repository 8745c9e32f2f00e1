#include "run_stage.h"
#include "session/store_sheet.h"

namespace {

class RunAttachedTest : public RunStage {
protected:
    /// The user's own workbook and deck.
    void openUsersDocuments() {
        auto& book = suite->excel().addWorkbook("Mine.xlsx", folder.path().string());
        fill(book);
        keep(suite->powerPoint().addPresentation("Talk.pptx", folder.path().string()).addSlides(1));
    }

    int attach(std::vector<std::string> more = {}) {
        std::vector<std::string> words = {"--attach", "--output", folder.file("Out.pptx")};
        words.insert(words.end(), more.begin(), more.end());
        return run(words);
    }
};

TEST_F(RunAttachedTest, UsesWhatIsActiveStartsNothingAndClosesNothing) {
    openUsersDocuments();
    ASSERT_EQ(attach(), 0) << console.error;
    EXPECT_EQ(suitesStarted, 0);
    EXPECT_EQ(pictures().size(), 5U);
    EXPECT_NE(suite->excel().activeWorkbook(), nullptr);
    EXPECT_EQ(suite->powerPoint().open().size(), 1U);
    EXPECT_EQ(slidesIn("Out.pptx"), 6);
}

TEST_F(RunAttachedTest, ADeckThatIsOpenedForReadingOnlyIsFoundByTheReview) {
    openUsersDocuments();
    deck->readOnly = true;
    EXPECT_EQ(attach({"--check"}), 3);
    EXPECT_TRUE(console.errorHas("The presentation is opened for reading only")) << console.error;
}

TEST_F(RunAttachedTest, LeavesThePlacementInTheUsersWorkbookAsItWasAlsoAfterAFailure) {
    openUsersDocuments();
    ASSERT_EQ(attach(), 0) << console.error;
    const auto top = suite->attach("Excel.Application")
                         .get("ActiveWorkbook")
                         .get("Sheets")
                         .get("Item", session::store::sheetName)
                         .get("Range", "O1")
                         .toObject();
    top.put("Value", 0.125);
    for (const int code : {0, 1}) {
        if (code == 1) suite->failures().fail("Chart.Export");
        ASSERT_EQ(attach({"--overwrite", "--top", "0.5"}), code) << console.error;
        EXPECT_EQ(deck->slide(7).shapes().back().box().top, 270);
        EXPECT_EQ(top.get("Value").toDouble(), 0.125);
    }
}

TEST_F(RunAttachedTest, EndsAfterTheItemAtHandWhenInterrupted) {
    openUsersDocuments();
    isInterrupted = [this] { return suite->log().count("Chart.Export") >= 2; };
    const std::string page = folder.file("page");
    EXPECT_EQ(attach({"--to", "slides", "--top", "0.5", "--to", "html", "--output", page}), 1);
    EXPECT_TRUE(
        console.errorHas("Interrupted: 2 of 5 items are in the open presentation; no file "
                         "was written."))
        << console.error;
    EXPECT_EQ(deck->slideCount(), 3) << "no slide without its item";
    EXPECT_EQ(pictures().size(), 2U);
    const auto store = suite->excel().activeWorkbook()->handle().get("Sheets").get(
        "Item", session::store::sheetName);
    EXPECT_NE(store.get("Range", "O1").get("Value").toText(), "0.5");
    EXPECT_EQ(folder.names(), (std::set<std::string>{"Book.xlsx", "Deck.pptx"}));
}

TEST_F(RunAttachedTest, AFailureLeavesNoSlideWithoutItsItemAndSaysWhatIsThere) {
    const std::tuple<const char*, int, const char*, int> all[] = {
        {"Chart.Export", 2, "1 of 5 items are in the open presentation; no file was written.", 2},
        {"Slides.Add", 3, "Slides.Add", 1},
        {"Presentation.SaveCopyAs", 1, "5 of 5 items are in the open presentation; no file", 6}};
    for (const auto& [member, at, said, slides] : all) {
        suite = std::make_shared<office_double::DoubleSuite>();
        openUsersDocuments();
        suite->failures().fail(member, at);
        EXPECT_EQ(attach(), 1) << member;
        EXPECT_TRUE(console.errorHas(said)) << console.error;
        EXPECT_EQ(deck->slideCount(), slides) << member;
        EXPECT_EQ(console.errorHas("are in the open"), slides > 1) << console.error;
    }
}

TEST_F(RunAttachedTest, EndsAfterTheItemAtHandWhenItsPresentationOrDocumentIsClosed) {
    const std::tuple<const char*, const char*, const char*> all[] = {
        {"Chart.Export", "Talk.pptx", "Out.pptx"}, {"Selection.Paste", "Notes.docx", "Out.docx"}};
    for (const auto& [member, name, output] : all) {
        suite = std::make_shared<office_double::DoubleSuite>();
        openUsersDocuments();
        suite->word().addDocument("Notes.docx", folder.path().string());
        isInterrupted = [this, member = member, name = name] {
            if (suite->log().count(member) >= 2) suite->close(folder.file(name));
            return false;
        };
        EXPECT_EQ(run({"--attach", "--output", folder.file(output)}), 1) << output;
        EXPECT_TRUE(console.errorHas("has been closed. 2 of 5 items were exported."))
            << console.error;
    }
}

TEST_F(RunAttachedTest, LeavesExcelDrawingAlsoAfterAFailure) {
    openUsersDocuments();
    suite->failures().fail("Chart.Export");
    EXPECT_EQ(attach(), 1);
    EXPECT_TRUE(suite->attach("Excel.Application").get("ScreenUpdating").toBool());
}

TEST_F(RunAttachedTest, SaysWhatIsMissing) {
    EXPECT_EQ(attach(), 1);
    EXPECT_TRUE(console.errorHas("No running suite has a workbook open")) << console.error;
    suite->quitPowerPoint();
    fill(suite->excel().addWorkbook("Mine.xlsx"));
    EXPECT_EQ(attach(), 3);
    EXPECT_TRUE(console.errorHas("PowerPoint is not running")) << console.error;
    suite->quitExcel();
    EXPECT_EQ(attach(), 1);
    EXPECT_TRUE(console.errorHas("No running suite has a workbook open")) << console.error;
}

TEST_F(RunAttachedTest, AWorkbookThatIsNamedHasToBeTheActiveOne) {
    openUsersDocuments();
    EXPECT_EQ(attach({bookFile}), 1);
    EXPECT_TRUE(console.errorHas("The active workbook is")) << console.error;
    EXPECT_EQ(attach({folder.write("Mine.xlsx", "x")}), 0) << console.error;
}

TEST_F(RunAttachedTest, TheActivePresentationIsTakenAndTheUsersIsNeverTheOutput) {
    openUsersDocuments();
    suite->powerPoint().addPresentation("Second.pptx").addSlides(2);
    EXPECT_EQ(attach(), 0) << console.error;
    EXPECT_EQ(slidesIn("Out.pptx"), 7);
    folder.write("Talk.pptx", "theirs");
    deck->activate();
    EXPECT_EQ(run({"--attach", "--output", folder.file("Talk.pptx"), "--overwrite"}), 2);
    EXPECT_EQ(folder.read("Talk.pptx"), "theirs");
}

}  // namespace

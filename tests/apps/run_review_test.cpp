#include "run_stage.h"

namespace {

using office_double::Workbook;

/// What keeps an export from running, or asks first.
class RunReviewTest : public RunStage {
protected:
    void fillWith(std::function<void(Workbook&)> filler) {
        suite->excel().addFile(bookFile, std::move(filler));
    }

    static void hideSouth(Workbook& book) {
        fill(book);
        book.handle().get("Sheets").get("Item", "South").put("Visible", 0);
    }

    /// A workbook whose store still has the chart of a sheet that is hidden by now.
    void storeHiddenItem() {
        fillWith([](Workbook& book) {
            hideSouth(book);
            auto& store = book.sheet("kukukukuZichron");
            store.block("A1", {{"Chart 1", "North", "", 1, true, "Embedded", "", "Chart 1North"},
                               {"Chart 9", "North", "", "", false, "Embedded", "", "Chart 9North"},
                               {"Chart 1", "South", "", 2, true, "Embedded", "", "Chart 1South"}});
        });
    }
};

TEST_F(RunReviewTest, ABlockedExportEndsWithThreeAndTheReasonsAndACheckRunsTheReviewAlone) {
    EXPECT_EQ(run({bookFile, "--check"}), 0);
    EXPECT_EQ(console.error, "5 of 5 items can be exported.\n");
    const std::vector<std::string> checks[] = {
        {"--output", folder.file("Out.pptx"), "--items", "Total"}, {"--check"}};
    for (std::vector<std::string> words : checks) {
        words.insert(words.begin(), {bookFile, "--into", deckFile, "--slides", "predefined"});
        EXPECT_EQ(run(words), 3);
        EXPECT_TRUE(console.errorHas("Export blocked")) << console.error;
        EXPECT_TRUE(console.errorHas("Missing slide number for \"Total\"")) << console.error;
    }
    EXPECT_TRUE(hasOnlyInputs());
    EXPECT_EQ(suite->log().count("Slides.Add"), 0U);
}

TEST_F(RunReviewTest, AWarningEndsTheRunUnlessItWasAgreedToBeforehand) {
    storeHiddenItem();
    EXPECT_EQ(run({bookFile, "--check"}), 3) << "as the export";
    EXPECT_TRUE(console.errorHas("will be skipped."));
    EXPECT_EQ(run({bookFile, "--check", "--yes"}), 0);
    console.somebodyIsThere = true;
    EXPECT_EQ(run({bookFile, "--check"}), 0);
    EXPECT_FALSE(console.errorHas("Type y")) << console.error;
    console.somebodyIsThere = false;
    EXPECT_EQ(run({bookFile, "--list"}), 0);
    EXPECT_NE(console.out.find("South     chart        hidden or gone"), std::string::npos)
        << console.out;
    EXPECT_EQ(exportWith(), 3);
    EXPECT_TRUE(console.errorHas("1 checked item(s) are on hidden worksheets and will be skipped."))
        << console.error;
    EXPECT_TRUE(console.errorHas("--yes goes on over this."));
    EXPECT_FALSE(hasOutput());
    const std::string warning = "on hidden worksheets";
    console.error.clear();
    EXPECT_EQ(exportWith({"--to", "slides", "--to", "html", "--output", folder.file("page")}), 3);
    EXPECT_EQ(console.error.find(warning), console.error.rfind(warning))
        << "once for all destinations";
    EXPECT_EQ(exportWith({"--yes"}), 0) << console.error;
    EXPECT_TRUE(hasOutput());
    EXPECT_EQ(deck->slideCount(), 2U + pictures().size()) << "no slide for the hidden one";
    EXPECT_TRUE(console.errorHas(fmt::format("Exported {} items", pictures().size())));
    console.somebodyIsThere = true;
    console.typed = {"n", "y"};
    EXPECT_EQ(exportWith({"--overwrite"}), 3);
    EXPECT_EQ(exportWith({"--overwrite"}), 0) << console.error;
    EXPECT_EQ(exportWith({"--overwrite", "--all"}), 0) << "of what there is " << console.error;
}

TEST_F(RunReviewTest, ARangeOfSeveralAreasIsLeftOutByAllAndBlocksByName) {
    fillWith([](Workbook& book) {
        fill(book);
        book.define("Scattered", "=North!$A$1:$A$5,North!$C$1:$C$5");
    });
    EXPECT_EQ(exportWith({"--all"}), 0) << console.error;
    EXPECT_EQ(pictures().size(), 5U);
    EXPECT_EQ(run({bookFile, "--check", "--items", "Scattered"}), 3);
    EXPECT_TRUE(console.errorHas("\"Scattered\" is a multiple-area range"));
}

}  // namespace

#include "run_stage.h"

namespace {

class RunFailuresTest : public RunStage {};

TEST_F(RunFailuresTest, AFailureNamesTheItemThereIsAndLeavesNoFile) {
    suite->failures().fail("Slides.Add");
    EXPECT_EQ(exportWith(), 1);
    EXPECT_TRUE(console.errorHas("Slides.Add") && !console.errorHas("on sheet")) << console.error;
    suite->failures().fail("Chart.Export");
    EXPECT_EQ(exportWith(), 1);
    EXPECT_TRUE(console.errorHas("Could not export \"Chart 1\" on sheet \"North\""))
        << console.error;
    EXPECT_TRUE(console.errorHas("--keep-going"));
    EXPECT_TRUE(hasOnlyInputs());
    EXPECT_EQ(suite->excel().activeWorkbook(), nullptr);
}

TEST_F(RunFailuresTest, WhatItTellsOfNamesCannotDriveTheTerminal) {
    const std::string hostile = folder.write("Hostile.xlsx", "a workbook");
    suite->excel().addFile(hostile, [](office_double::Workbook& book) {
        book.sheet("No\x1b[2Jrth").chart("Chart\n1").chart("Chart 2");
    });
    suite->failures().failAlways("Chart.Export");
    for (const char* option : {"--overwrite", "--keep-going"}) {
        EXPECT_EQ(run({hostile, "--output", folder.file("Out.pptx"), option}), 1);
        EXPECT_TRUE(console.errorHas("on sheet \"No [2Jrth\"")) << console.error;
    }
}

TEST_F(RunFailuresTest, AListThatDoesNotGoOutIsNoSuccess) {
    console.takesOut = false;
    EXPECT_EQ(run({bookFile, "--list"}), 1);
    EXPECT_TRUE(console.errorHas("The list could not be written: No space")) << console.error;
}

TEST_F(RunFailuresTest, KeptGoingTheRunSavesTheOthersAndListsWhatFailed) {
    suite->failures().fail("Chart.Export", 2);
    EXPECT_EQ(exportWith({"--keep-going"}), 1);
    EXPECT_EQ(pictures(), (std::vector<std::string>{"Chart 1", "Total", "Chart 1", "Overview"}));
    EXPECT_TRUE(console.errorHas("of 5 items 1 could not be exported:\n  \"Chart 2\" on sheet "))
        << console.error;
    EXPECT_TRUE(hasOutput());
    suite->failures().fail("Slides.Add");
    EXPECT_EQ(exportWith({"--keep-going", "--overwrite"}), 1);
    EXPECT_FALSE(console.errorHas("incomplete")) << console.error;
}

TEST_F(RunFailuresTest, AnItemThatIsTurnedAwayMakesTheOutputIncomplete) {
    // The range goes between the review and its turn.
    ASSERT_EQ(run({bookFile, "--check"}), 0);
    for (const char* look : {"Worksheet.Range", "Name.RefersToRange"}) {
        suite->failures().fail(look, static_cast<int>(suite->log().count(look)) + 1);
    }
    const int code = exportWith({"--items", "Total,Overview"});
    ASSERT_TRUE(console.errorHas("Named range 'Total' not found")) << console.error;
    EXPECT_EQ(code, 1);
    EXPECT_TRUE(console.errorHas("is incomplete: of 2 items 1 could not be exported"));
    EXPECT_TRUE(hasOutput());
}

TEST_F(RunFailuresTest, WhereNoItemGotThroughWhatWasThereStays) {
    suite->failures().failAlways("Shapes.PasteSpecial");
    suite->failures().failAlways("View.PasteSpecial");
    suite->failures().failAlways("Chart.Export");
    folder.write("Out.pptx", "old");
    for (const char* option : {"--format=embedded", "--keep-going"}) {
        EXPECT_EQ(exportWith({option, "--items", "Chart 2,Overview", "--overwrite"}), 1);
        EXPECT_TRUE(console.errorHas("Of 2 items for " + folder.file("Out.pptx") +
                                     " 2 could not be exported"))
            << console.error;
        EXPECT_TRUE(console.errorHas("Out.pptx stays as it is.")) << console.error;
        EXPECT_EQ(folder.read("Out.pptx"), "old");
    }
}

TEST_F(RunFailuresTest, AFailedSaveLeavesWhatWasThere) {
    suite->failures().failAlways("Presentation.SaveCopyAs");
    EXPECT_EQ(exportWith(), 1);
    EXPECT_TRUE(hasOnlyInputs());
    folder.write("Out.pptx", "old");
    EXPECT_EQ(exportWith({"--overwrite"}), 1);
    EXPECT_EQ(folder.read("Out.pptx"), "old");
}

TEST_F(RunFailuresTest, AnOutputThatCannotTakeItsPlaceTakesTheOthersAlong) {
    const std::string document = folder.file("Out.docx");
    isInterrupted = [&] {
        if (suite->log().count("Chart.CopyPicture") > 0) folder.write("Out.docx", "theirs");
        return false;
    };
    suite->failures().fail("Chart.Export", 2);
    EXPECT_EQ(exportWith({"--output", document, "--keep-going"}), 1);
    EXPECT_TRUE(console.errorHas("Of 5 items for " + folder.file("Out.pptx") +
                                 " 1 could not be exported:\n  \"Chart 2\" on sheet "))
        << console.error;
    EXPECT_FALSE(console.errorHas("incomplete")) << console.error;
    EXPECT_TRUE(console.errorHas("somebody else meanwhile and was left alone.\nNo other output"))
        << console.error;
    EXPECT_FALSE(hasOutput());
    EXPECT_EQ(folder.read("Out.docx"), "theirs");
    // What the suite in memory draws reaches no folder.
    folder.write("Out.pptx", "old");
    EXPECT_EQ(exportWith({"--overwrite", "--to", "slides", "--to", "images", "--output",
                          folder.file("pictures")}),
              1);
    EXPECT_TRUE(console.errorHas("Nothing was exported, so ")) << console.error;
    EXPECT_EQ(folder.read("Out.pptx"), "old");
}

TEST_F(RunFailuresTest, ALostSuiteIsReportedWheneverItGoes) {
    ASSERT_EQ(exportWith({"--overwrite"}), 0);
    const int calls = static_cast<int>(suite->log().count());
    std::filesystem::remove(folder.file("Out.pptx"));
    int reported = 0;
    for (int at = 1; at < calls - 2; at += 11) {
        suite = std::make_shared<office_double::DoubleSuite>();
        suite->excel().addFile(bookFile, [](office_double::Workbook& book) { fill(book); });
        suite->powerPoint().addFile(
            deckFile, [](office_double::Presentation& opened) { opened.addSlides(2); });
        suite->failures().loseSuiteAt(at);
        EXPECT_EQ(exportWith(), 1) << at;
        EXPECT_TRUE(console.errorHas("The office suite has gone")) << at << console.error;
        EXPECT_TRUE(hasOnlyInputs()) << at;
        ++reported;
    }
    EXPECT_GT(reported, 20);
}

TEST_F(RunFailuresTest, ASuiteThatDoesNotStartIsReported) {
    const apps::SuiteSource none{[]() -> std::shared_ptr<office::Suite> {
                                     throw office::Failure(
                                         office::FailureNumber::ApplicationDefined, "LibreOffice",
                                         "It is not installed");
                                 },
                                 nullptr};
    unattended::Options options;
    options.book = bookFile;
    options.targets = {{catalogue::Destination::PowerPoint, folder.file("Out.pptx")}};
    EXPECT_EQ(unattended::run(options, {none, host, console, isInterrupted}), 1);
    EXPECT_TRUE(console.errorHas("It is not installed"));
    EXPECT_TRUE(hasOnlyInputs());
}

TEST_F(RunFailuresTest, AnInterruptionSaysSoAndLeavesNothingAlsoIfTheSuiteGoesForIt) {
    int asked = 0;
    isInterrupted = [&] { return ++asked > 2; };
    EXPECT_EQ(exportWith(), 1);
    EXPECT_EQ(console.error, "murvane-export: Interrupted; nothing was written.\n");
    EXPECT_TRUE(hasOnlyInputs());
    asked = 0;
    isInterrupted = [&] { return asked > 0; };
    host.onEvents = [&] {
        asked = 1;
        suite->kill();
    };
    EXPECT_EQ(exportWith(), 1);
    EXPECT_EQ(console.error, "murvane-export: Interrupted; nothing was written.\n");
}

}  // namespace

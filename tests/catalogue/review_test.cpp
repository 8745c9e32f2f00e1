#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "catalogue/export_run.h"
#include "catalogue/review.h"
#include "loaded_list.h"

namespace {

using catalogue::Destination;
using catalogue::ExportChoices;
using catalogue::ReviewResult;
using catalogue_tests::ItemKind;
using catalogue_tests::row;
using session_doubles::TestSession;
using Words = std::vector<std::string>;

class Review : public testing::Test {
protected:
    TestSession test;
    catalogue::ExportList list;
    ExportChoices choices;

    Review() {
        auto& book = test.suite.excel().addWorkbook("Book1.xlsx");
        book.sheet("Sales").chart("Chart 1").define("Parts", "A1:A5,C1:C5").define("Whole", "A1");
        book.sheet("Hidden").chart("Chart 2").hide();
        test.attach();
        list.rows = {row("Chart 1", "Sales", session::ItemKind::Chart)};
    }

    void openDeck(int count) {
        test.suite.powerPoint().addPresentation("Deck.pptx").addSlides(count);
    }
    void predefine(const std::string& slideNumber) {
        choices.predefinedSlides = true;
        list.rows.front().slideNumber = slideNumber;
    }
    [[nodiscard]] Words blockers() {
        return catalogue::reviewExport(test.session, list, {choices}).Blockers;
    }
};

const char* const nothingChecked =
    "No items are checked. Select at least one chart, range, or object to export.";
const char* const noPowerPoint =
    "PowerPoint is not running. Open PowerPoint and a presentation, then try again.";

TEST_F(Review, LetsAReadyExportGoWithoutAWord) {
    openDeck(1);
    EXPECT_EQ(catalogue::PreExportReview(test.session, list, {choices}), ReviewResult::Go);
    EXPECT_TRUE(test.notices.shown.empty());
    EXPECT_TRUE(test.session.PowerPointFound);
}

TEST_F(Review, CollectsTheBlockersOfItemsAndDestination) {
    list.rows.front().checked = false;
    EXPECT_EQ(blockers(), (Words{nothingChecked, noPowerPoint}));
    list.rows = {row("Chart 2", "Hidden", session::ItemKind::Chart)};
    choices.destination = Destination::Html;
    EXPECT_EQ(blockers(),
              Words{"All checked items are on hidden worksheets and cannot be exported. Show those "
                    "sheets or uncheck them."});
    list.rows = {row("Chart 2", "Renamed", session::ItemKind::Chart)};
    EXPECT_EQ(blockers(),
              Words{"The sheets of all checked items are no longer in the workbook. They may have "
                    "been renamed: check the items under the new names."});
    list.rows.push_back(row("Chart 9", "Sales", session::ItemKind::Chart));
    list.rows.back().isMissing = true;
    EXPECT_EQ(blockers(),
              Words{"The checked items are no longer in the workbook. They may have been "
                    "renamed: check the items under the new names."});
    list.rows.back() = row("Chart 2", "Hidden", session::ItemKind::Chart);
    const auto texts = catalogue::reviewExport(test.session, list, {choices});
    EXPECT_TRUE(texts.Blockers[0].starts_with("All checked items are on hidden worksheets"));
    EXPECT_EQ(texts.ReviewItems,
              Words{"1 checked item(s) are on sheets that are no longer in the workbook: "
                    "\"Chart 2\" on sheet \"Renamed\"."});
    const auto book = test.session.ActiveBook;
    test.session.ActiveBook.release();
    EXPECT_EQ(blockers(), Words{"The workbook is no longer open. Open it again and start anew."});
    test.session.ActiveBook = book;
    list.rows = {row("Chart 1", "Sales", session::ItemKind::Chart)};
    choices.destination = Destination::Word;
    EXPECT_EQ(blockers(),
              Words{"Word is not running. Open Word with an active document, then try again."});
    test.suite.word().addDocument("Report.docx").readOnly = true;
    EXPECT_EQ(blockers(), Words{"The Word document is opened for reading only. Open it for editing "
                                "or save it under another name, then try again."});
    choices.destination = Destination::PowerPoint;
    test.suite.powerPoint();
    EXPECT_EQ(blockers(),
              Words{"No PowerPoint presentation is open. Open or create a presentation, then try "
                    "again."});
}

TEST_F(Review, BlocksARangeOfSeveralAreasForEveryDestination) {
    list.rows = {row("Whole", "Sales", ItemKind::Range), row("Parts", "Sales", ItemKind::Range),
                 row("Gone", "Sales", ItemKind::Range)};
    openDeck(1);
    for (const Destination destination :
         {Destination::PowerPoint, Destination::Html, Destination::Pdf, Destination::ImageFiles}) {
        choices.destination = destination;
        EXPECT_EQ(blockers(), Words{"\"Parts\" is a multiple-area range and cannot be exported."})
            << static_cast<int>(destination);
    }
}

TEST_F(Review, ShowsTheBlockersTogetherWithWhatToReview) {
    list.rows.push_back(row("Chart 2", "Hidden", ItemKind::Chart));
    EXPECT_EQ(catalogue::PreExportReview(test.session, list, {choices}), ReviewResult::Blocked);
    ASSERT_EQ(test.notices.shown.size(), 1U);
    EXPECT_EQ(test.notices.shown.front().title, "Export blocked");
    EXPECT_EQ(test.notices.shown.front().message,
              std::string(noPowerPoint) +
                  "\r\n\r\n1 checked item(s) are on hidden worksheets and will be skipped.");
}

TEST_F(Review, AsksWhetherToGoOnWithoutTheHiddenItems) {
    list.rows.push_back(row("Chart 2", "Hidden", ItemKind::Chart));
    list.rows.push_back(row("Chart 3", "Renamed", ItemKind::Chart));
    list.rows.push_back(row("Chart 9", "Sales", ItemKind::Chart));
    list.rows.back().isMissing = true;
    EXPECT_EQ(catalogue::takeRows(test.session, list, {}).size(), list.rows.size() - 3);
    openDeck(1);
    test.notices.answers = {session::answer::ok, session::answer::cancel};
    EXPECT_EQ(catalogue::PreExportReview(test.session, list, {choices}), ReviewResult::Go);
    EXPECT_EQ(catalogue::PreExportReview(test.session, list, {choices}), ReviewResult::Cancelled);
    EXPECT_EQ(test.notices.shown.front().title, "Export review");
    EXPECT_EQ(test.notices.shown.front().buttons, session::buttons::question);
    EXPECT_EQ(test.notices.shown.front().message,
              "- 1 checked item(s) are on hidden worksheets and will be skipped.\r\n"
              "- 1 checked item(s) are on sheets that are no longer in the workbook and will be "
              "skipped: \"Chart 3\" on sheet \"Renamed\".\r\n"
              "- 1 checked item(s) are no longer in the workbook and will be skipped: "
              "\"Chart 9\" on sheet \"Sales\"."
              "\r\n\r\n\r\nContinue anyway?");
}

TEST_F(Review, AttachesAgainWhereTheFirstReferenceDoesNotAnswer) {
    openDeck(1);
    test.suite.failures().fail("Presentations.Count");
    EXPECT_EQ(blockers(), Words{});
    test.suite.failures().failAlways("Presentations.Count");
    EXPECT_EQ(blockers(), Words{noPowerPoint});
}

TEST_F(Review, ChecksTheSlideNumbersWhereSlidesArePredefined) {
    openDeck(3);
    const std::pair<std::string, Words> cases[] = {
        {"3", {}},
        {"1.6", {}},
        {" 2 ", {}},
        {" ", {"Missing slide number for \"Chart 1\". Enter a slide number or uncheck the item."}},
        {"0", {"Invalid slide number for \"Chart 1\"."}},
        {"-5", {"Invalid slide number for \"Chart 1\"."}},
        {"none", {"Invalid slide number for \"Chart 1\"."}},
        {"4", {"Slide 4 for \"Chart 1\" exceeds the presentation size (3 slides)."}},
        {"9999999999",
         {"Slide 2147483647 for \"Chart 1\" exceeds the presentation size (3 slides)."}},
    };
    for (const auto& [number, expected] : cases) {
        predefine(number);
        EXPECT_EQ(blockers(), expected) << number;
    }
    choices.predefinedSlides = false;
    EXPECT_EQ(blockers(), Words{}) << "the numbers don't matter where slides are new";
}

TEST_F(Review, DoesNotReportSlideNumbersOfHiddenRows) {
    openDeck(3);
    predefine("2");
    list.rows.push_back(row("Chart 2", "Hidden", ItemKind::Chart));
    EXPECT_EQ(blockers(), Words{});
    list.rows.erase(list.rows.begin());
    EXPECT_EQ(blockers().size(), 1U) << "all hidden is one blocker, not two";
}

TEST_F(Review, SaysThatThePresentationCannotBeRead) {
    openDeck(3);
    predefine("2");
    test.suite.failures().failAlways("Slides.Count");
    EXPECT_EQ(blockers(), Words{"Could not read the open PowerPoint presentation."});
}

TEST_F(Review, EscapesNamesInItsPage) {
    openDeck(1);
    list.rows.front().name = "<b>";
    predefine("0");
    catalogue::PreExportReview(test.session, list, {choices});
    EXPECT_NE(test.notices.shown.front().page.find(
                  "<li>Invalid slide number for &quot;&lt;b&gt;&quot;.</li>"),
              std::string::npos);
}

TEST_F(Review, AsksOverWhatTheFormatCannotDoForAnItem) {
    openDeck(1);
    list.rows.push_back(row("Chart 2", "Hidden", session::ItemKind::Chart));
    test.suite.remarkOn(office::PasteAs::Embedded, "it stays <small>");
    const auto lines = [&](catalogue::ExportFormat format) {
        choices.format = format;
        return catalogue::reviewExport(test.session, list, {choices}).ReviewItems;
    };
    const std::string hidden = "1 checked item(s) are on hidden worksheets and will be skipped.";
    EXPECT_EQ(lines(catalogue::ExportFormat::Embedded),
              (Words{hidden, "Chart 1 of /documents/Book1.xlsx, sheet Sales: it stays <small>"}));
    EXPECT_EQ(lines(catalogue::ExportFormat::Linked), Words{hidden});
}

TEST_F(Review, AsksOverWhatNobodyWillSeeOfCells) {
    openDeck(1);
    test.suite.word().addDocument("Report.docx");
    list.rows = {row("Whole", "Sales", ItemKind::Range), row("Other", "Sales", ItemKind::Range),
                 row("Lines", "Sales", ItemKind::Range)};
    // A slide is 540 points high, pages are 842 and 595.
    test.suite.show("Whole", {.size = {600, 1600}, .lettersPt = 10});
    test.suite.show("Other", {.size = {100, 2700}, .lettersPt = 21, .mayBeMisdrawn = true});
    test.suite.show("Lines", {.size = {600, 5000}, .lettersPt = 40, .haveSparklines = true});
    const std::string lines = "\"Lines\" will be shown without the sparklines in its cells.";
    const std::string slide =
        "\"Whole\" is too large for a slide: its text will be too small to read.";
    const std::string page =
        "\"Whole\" is too large for a page: its text will be too small to read.";
    const std::string wrong =
        "The picture of \"Other\" may have conditional formats wrong that go by cells outside.";
    const std::string table = "The table of \"Lines\" will be without the icons.";
    test.suite.remarkOnPage(table);
    using catalogue::ExportFormat;
    const struct {
        Destination destination;
        ExportFormat format;
        Words lines;
    } cases[] = {{Destination::PowerPoint, ExportFormat::Pictures, {wrong, lines, slide}},
                 {Destination::PowerPoint, ExportFormat::Editable, {lines, slide}},
                 {Destination::Pdf, ExportFormat::Pictures, {wrong, lines, page}},
                 {Destination::Word, ExportFormat::Pictures, {wrong, lines}},
                 {Destination::Word, ExportFormat::Editable, {lines}},
                 {Destination::Html, ExportFormat::Pictures, {lines, table}},
                 {Destination::ImageFiles, ExportFormat::Pictures, {wrong, lines}}};
    for (const auto& each : cases) {
        choices.destination = each.destination;
        choices.format = each.format;
        EXPECT_EQ(catalogue::reviewExport(test.session, list, {choices}).ReviewItems, each.lines)
            << static_cast<int>(each.destination);
    }
    test.suite.show("Whole", {.size = {600, 3000}, .lettersPt = 10});
    choices = {.destination = Destination::Word};
    EXPECT_EQ(catalogue::reviewExport(test.session, list, {choices}).ReviewItems,
              (Words{wrong, lines, page}));
    const ExportChoices asImages{.destination = Destination::Html, .areImages = true};
    EXPECT_EQ(catalogue::reviewExport(test.session, list, {asImages}).ReviewItems,
              (Words{wrong, lines}));
    // Told once, however many pages it is too large for, and by its sheet where names are equal.
    list.rows.push_back(row("Whole", "Sales", ItemKind::Range));
    const std::string bySheet =
        "\"Whole\" on sheet \"Sales\" is too large for a page: its text will be too small to read.";
    EXPECT_EQ(
        catalogue::reviewExport(test.session, list, {choices, {.destination = Destination::Pdf}})
            .ReviewItems,
        (Words{wrong, lines, bySheet}));
}

}  // namespace

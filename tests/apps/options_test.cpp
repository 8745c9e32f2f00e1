#include <gtest/gtest.h>

#include "apps/murvane_export/errors.h"
#include "apps/murvane_export/options.h"

namespace {

using catalogue::Destination;
using unattended::Options;
using unattended::ParseEnd;
using unattended::Task;
using Targets = std::vector<unattended::Target>;
using Words = std::vector<std::string>;

Options parsed(const Words& words) {
    const auto result = unattended::parseOptions(words);
    if (const auto* end = std::get_if<ParseEnd>(&result)) {
        ADD_FAILURE() << end->error;
        return {};
    }
    return std::get<Options>(result);
}

TEST(Options, EverythingThatCanBeSaidIsHeard) {
    const Options options =
        parsed({"book.xlsx", "--to",       "slides",  "--into",   "deck.pptx",  "--output",
                "out.pptx",  "--items",    "A,B@S",   "--items",  "C",          "--order",
                "C",         "--captions", "c.csv",   "--slides", "predefined", "--titles",
                "--source",  "--style",    "Rounded", "--top",    "0.25",       "--width",
                "default",   "--left",     "0",       "--yes",    "--quiet",    "--overwrite"});
    EXPECT_EQ(options.task, Task::Export);
    EXPECT_EQ(options.book, "book.xlsx");
    EXPECT_EQ(options.targets, (Targets{{Destination::PowerPoint, "out.pptx"}}));
    EXPECT_EQ(options.deck, "deck.pptx");
    EXPECT_EQ(options.items, (Words{"A,B@S", "C"}));
    EXPECT_EQ(options.order, Words{"C"});
    EXPECT_EQ(options.captionsFile, "c.csv");
    EXPECT_TRUE(options.predefinedSlides && *options.titles && options.source);
    EXPECT_EQ(options.look, session::PictureLook::RoundedCorners);
    EXPECT_EQ(options.top->share, 0.25);
    EXPECT_EQ(options.width->share, std::nullopt);
    EXPECT_EQ(options.left->share, 0.0);
    EXPECT_TRUE(options.yes && options.quiet && options.overwrite);
    const Options shadows = parsed({"b.xlsx", "--list", "--shadow", "--format", "editable"});
    EXPECT_TRUE(shadows.shadow && shadows.format == catalogue::ExportFormat::Editable);
}

TEST(Options, OutputsTellTheirDestinationWhereNothingElseDoes) {
    const std::tuple<Words, Targets> all[] = {
        {{"--output", "a.PDF"}, {{Destination::Pdf, "a.PDF"}}},
        {{"--output", "a.docm"}, {{Destination::Word, "a.docm"}}},
        {{"--output", "a.ODP"}, {{Destination::PowerPoint, "a.ODP"}}},
        {{"--to", "html", "--output", "page", "--output", "x.pptx", "--to", "slides"},
         {{Destination::Html, "page"}, {Destination::PowerPoint, "x.pptx"}}},
        {{"--check", "--to", "images"}, {{Destination::ImageFiles, ""}}},
        {{"--list"}, {{Destination::PowerPoint, ""}}}};
    for (auto [words, targets] : all) {
        words.insert(words.begin(), "book.xlsx");
        EXPECT_EQ(parsed(words).targets, targets) << words[2];
    }
    const Options both =
        parsed({"b.xlsx", "--into", "d.odt", "--into", "d.potx", "--output", "o.pptx", "--output",
                "o.docx", "--output", "o.pdf", "--cover", R"(One\nTwo)"});
    EXPECT_EQ(both.deck + " " + both.document, "d.potx d.odt");
    EXPECT_EQ(both.coverText, "One\nTwo");
    EXPECT_EQ(both.titles, std::nullopt);
    EXPECT_TRUE(parsed({"b.xlsx", "--output", "o.docx", "--to", "word", "--to", "slides",
                        "--output", "o.pptx", "--format", "embedded", "--shadow"})
                    .shadow)
        << "which the slides take";
}

TEST(Options, WrongUsageEndsWithTwoAndSaysWhy) {
    const std::tuple<const char*, Words, const char*> all[] = {
        {"nothing at all", {}, "workbook"},
        {"no output", {"b.xlsx"}, "--output"},
        {"an output of no kind", {"b.xlsx", "--output", "o.xyz"}, "--to"},
        {"unknown option", {"b.xlsx", "--frobnicate"}, "--frobnicate"},
        {"two books", {"b.xlsx", "c.xlsx", "--list"}, "c.xlsx"},
        {"list and check", {"b.xlsx", "--list", "--check"}, "--check"},
        {"JSON of nothing", {"b.xlsx", "--check", "--json"}, "--list"},
        {"a list and its file", {"b.xlsx", "--list", "--output", "o.pptx"}, "--output and --list"},
        {"a list of a kind", {"b.xlsx", "--list", "--to", "pdf"}, "--to and --list"},
        {"a list over a file", {"b.xlsx", "--list", "--overwrite"}, "--overwrite and --list"},
        {"a list into a deck", {"b.xlsx", "--list", "--into", "d.pptx"}, "--into and --list"},
        {"the size of cells",
         {"b.xlsx", "--check", "--to", "html", "--size", "50"},
         "--same-width"},
        {"all and some", {"b.xlsx", "--list", "--all", "--items", "A"}, "--items"},
        {"attach and deck", {"--attach", "--into", "d.pptx", "--output", "o.pptx"}, "--attach"},
        {"slides of nothing", {"b.xlsx", "--output", "o.pptx", "--slides", "predefined"}, "--into"},
        {"unknown style",
         {"b.xlsx", "--list", "--style", "neon"},
         "shadow or shadow-around, not \"neon\"."},
        {"sheet alone in a link", {"b.xlsx", "--list", "--embed-only-sheet"}, "--format embedded"},
        {"links of pictures", {"b.xlsx", "--list", "--links", "relative"}, "--format linked"},
        {"an output too few",
         {"b.xlsx", "--to", "pdf", "--to", "word", "--output", "o.pdf"},
         "--to"},
        {"one kind twice", {"b.xlsx", "--output", "o.pdf", "--output", "p.pdf"}, "each kind"},
        {"into what is not made",
         {"b.xlsx", "--into", "d.docx", "--output", "o.pptx"},
         "--to word"},
        {"a cover of slides", {"b.xlsx", "--output", "o.pptx", "--cover", "T"}, "--to pdf"},
        {"widths of slides", {"b.xlsx", "--list", "--same-width"}, "--to word or html"},
        {"titles or not", {"b.xlsx", "--list", "--titles", "--no-titles"}, "--no-titles"},
        {"too large",
         {"b.xlsx", "--check", "--to", "pdf", "--size", "101"},
         "--size takes a number from 1 to 100, not \"101\"."},
        {"no size",
         {"b.xlsx", "--check", "--to", "pdf", "--size", "abc"},
         "1 to 100, not \"abc\"."},
        {"no whole number",
         {"b.xlsx", "--check", "--to", "html", "--blank-lines", "1.5"},
         "--blank-lines takes a whole number from 0 to 100, not \"1.5\"."},
        {"vectors of tables",
         {"b.xlsx", "--list", "--format", "editable", "--pictures", "svg"},
         "--format pictures"},
        {"vectors of pages",
         {"b.xlsx", "--list", "--to", "html", "--pictures", "emf"},
         "--to slides or word"},
        {"slides of a document",
         {"b.xlsx", "--output", "o.docx", "--slides", "new"},
         "--to slides"},
        {"a look of pages", {"b.xlsx", "--output", "o.pdf", "--style", "shadow"}, "--to slides"},
        {"the top of a document", {"b.xlsx", "--output", "o.docx", "--top", "0.1"}, "--to slides"},
        {"the width of one", {"b.xlsx", "--output", "o.docx", "--width", "0.5"}, "--to slides"},
        {"the left of one", {"b.xlsx", "--output", "o.docx", "--left", "0.1"}, "--to slides"},
        {"a form of pages",
         {"b.xlsx", "--output", "o.pdf", "--format", "editable"},
         "--to slides or word"},
        {"shadows of pages", {"b.xlsx", "--output", "o.pdf", "--shadow"}, "--to slides or word"},
        {"captions of objects",
         {"b.xlsx", "--output", "o.docx", "--format", "embedded", "--captions-below"},
         "--captions-below and --format embedded"},
        {"widths of objects",
         {"b.xlsx", "--output", "o.docx", "--format", "linked", "--same-width"},
         "--same-width and --format linked"},
        {"shadows of objects",
         {"b.xlsx", "--output", "o.docx", "--format", "embedded", "--shadow"},
         "--shadow and --format embedded"},
        {"two looks",
         {"b.xlsx", "--output", "o.pptx", "--style", "rounded", "--shadow"},
         "--style and --shadow"},
        {"two looks of what can be edited",
         {"b.xlsx", "--list", "--style", "rounded", "--shadow", "--format", "editable"},
         "--style and --shadow"},
        {"the source of pages", {"b.xlsx", "--output", "o.docx", "--source"}, "--to slides or pdf"},
        {"titles of a document",
         {"b.xlsx", "--output", "o.docx", "--no-titles"},
         "--to slides or pdf or html"},
        {"a deck that was not said", {"b.xlsx", "--output", "o.pptx", "--into", ""}, "--into has"},
        {"no captions", {"b.xlsx", "--output", "o.pptx", "--captions", ""}, "--captions has"},
        {"no place", {"b.xlsx", "--output", "o.pptx", "--left", ""}, "--left has an empty value"},
        {"no name", {"b.xlsx", "--to", "html", "--output", ""}, "--output has"},
        {"no cover", {"b.xlsx", "--output", "o.pdf", "--cover=", "--source"}, "--cover has"},
        {"no workbook, or the active one", {"", "--attach", "--output", "o.pptx"}, "BOOK has"},
        {"a page for a folder", {"b.xlsx", "--output", "Page.HTML"}, "--to html"},
        {"a picture for one", {"b.xlsx", "--to", "images", "--output", "x.png"}, "folder"},
        {"share beyond one", {"b.xlsx", "--list", "--top", "1.5"}, "--top"},
        {"share below nothing", {"b.xlsx", "--list", "--left", "-0.1"}, "--left"},
        {"too wide", {"b.xlsx", "--list", "--width", "1.2"}, "--width"},
        {"percent", {"b.xlsx", "--list", "--width", "90%"}, "90%"}};
    for (const auto& [what, words, saysAtLeast] : all) {
        SCOPED_TRACE(what);
        const auto result = unattended::parseOptions(words);
        ASSERT_TRUE(std::holds_alternative<ParseEnd>(result));
        const auto& end = std::get<ParseEnd>(result);
        EXPECT_EQ(end.exitCode, unattended::exit_code::wrongUsage);
        EXPECT_TRUE(end.out.empty());
        EXPECT_NE(end.error.find(saysAtLeast), std::string::npos) << end.error;
    }
}

TEST(Options, TaskAndWorkbookAreToldFromTheRest) {
    EXPECT_EQ(parsed({"book.xlsx", "--list", "--json"}).task, Task::List);
    EXPECT_EQ(parsed({"book.xlsx", "--check"}).task, Task::Check);
    EXPECT_TRUE(parsed({"--attach", "--output", "out.pptx"}).attach);
    EXPECT_EQ(parsed({"--items", "A", "book.xlsx", "--output", "out.pptx"}).book, "book.xlsx");
}

TEST(Options, HelpAndVersionEndTheProgramWell) {
    for (const auto& [option, text] : {std::pair("--help", "3 blocked by the review"),
                                       std::pair("--help", "1,000 pixels (default: 70)"),
                                       std::pair("--version", "murvane-export ")}) {
        const auto result = unattended::parseOptions({option});
        const auto& end = std::get<ParseEnd>(result);
        EXPECT_EQ(end.exitCode, 0);
        EXPECT_NE(end.out.find(text), std::string::npos) << end.out;
    }
}

}  // namespace

#include <gtest/gtest.h>

#include "apps/murvane_export/errors.h"
#include "apps/murvane_export/options.h"

namespace {

using unattended::Options;
using unattended::ParseEnd;
using unattended::Task;
using Words = std::vector<std::string>;

Options parsed(const Words& words) {
    const auto result = unattended::parseOptions(words);
    if (const auto* end = std::get_if<ParseEnd>(&result)) {
        ADD_FAILURE() << end->error;
        return {};
    }
    return std::get<Options>(result);
}

TEST(Options, AnExportNeedsABookAndAnOutputAndLeavesTheRestToTheWorkbook) {
    const Options options = parsed({"book.xlsx", "--output", "out.pptx"});
    EXPECT_EQ(options.task, Task::Export);
    EXPECT_EQ(options.book, "book.xlsx");
    EXPECT_EQ(options.output, "out.pptx");
    EXPECT_TRUE(options.deck.empty());
    EXPECT_TRUE(options.items.empty());
    EXPECT_FALSE(options.predefinedSlides || options.titles || options.source || options.shadow);
    EXPECT_FALSE(options.placesShapes());
    EXPECT_EQ(options.pictureStyle, 0);
}

TEST(Options, EverythingThatCanBeSaidIsHeard) {
    const Options options = parsed(
        {"book.xlsx", "--to",     "slides",     "--into",   "deck.pptx", "--output", "out.pptx",
         "--items",   "A,B@S",    "--items",    "C",        "--order",   "C",        "--captions",
         "c.csv",     "--slides", "predefined", "--titles", "--source",  "--shadow", "--style",
         "rounded",   "--top",    "0.25",       "--width",  "default",   "--left",   "0",
         "--yes",     "--quiet",  "--overwrite"});
    EXPECT_EQ(options.deck, "deck.pptx");
    EXPECT_EQ(options.items, (Words{"A,B@S", "C"}));
    EXPECT_EQ(options.order, Words{"C"});
    EXPECT_EQ(options.captionsFile, "c.csv");
    EXPECT_TRUE(options.predefinedSlides && options.titles && options.source && options.shadow);
    EXPECT_EQ(options.pictureStyle, 3);
    EXPECT_EQ(options.top->share, 0.25);
    EXPECT_EQ(options.width->share, std::nullopt);
    EXPECT_EQ(options.left->share, 0.0);
    EXPECT_TRUE(options.yes && options.quiet && options.overwrite);
}

TEST(Options, AnItemsOptionDoesNotSwallowTheWorkbook) {
    const Options options = parsed({"--items", "A", "book.xlsx", "--output", "out.pptx"});
    EXPECT_EQ(options.book, "book.xlsx");
    EXPECT_EQ(options.items, Words{"A"});
}

TEST(Options, ListAndCheckNeedNoOutputAndAttachNoBook) {
    EXPECT_EQ(parsed({"book.xlsx", "--list", "--json"}).task, Task::List);
    EXPECT_EQ(parsed({"book.xlsx", "--check"}).task, Task::Check);
    EXPECT_TRUE(parsed({"--attach", "--output", "out.pptx"}).attach);
}

struct StyleName {
    const char* name;
    int number;
};

TEST(Options, StylesAreNumberedAsTheyAre) {
    for (const StyleName& style : {StyleName{"none", 0},
                                   {"shadow-around", 1},
                                   {"shadow", 2},
                                   {"rounded", 3},
                                   {"reflection", 4},
                                   {"reflection-rounded", 5}}) {
        EXPECT_EQ(parsed({"b.xlsx", "--output", "o.pptx", "--style", style.name}).pictureStyle,
                  style.number)
            << style.name;
    }
}

struct WrongUsage {
    const char* what;
    Words words;
    const char* saysAtLeast;
};

class WrongUsageTest : public testing::TestWithParam<WrongUsage> {};

TEST_P(WrongUsageTest, EndsWithTwoAndSaysWhy) {
    const auto result = unattended::parseOptions(GetParam().words);
    ASSERT_TRUE(std::holds_alternative<ParseEnd>(result));
    const auto& end = std::get<ParseEnd>(result);
    EXPECT_EQ(end.exitCode, unattended::exit_code::wrongUsage);
    EXPECT_TRUE(end.out.empty());
    EXPECT_NE(end.error.find(GetParam().saysAtLeast), std::string::npos) << end.error;
}

INSTANTIATE_TEST_SUITE_P(
    CommandLines, WrongUsageTest,
    testing::Values(
        WrongUsage{"nothing at all", {}, "workbook"},
        WrongUsage{"no output", {"b.xlsx"}, "--output"},
        WrongUsage{"unknown option", {"b.xlsx", "--frobnicate"}, "--frobnicate"},
        WrongUsage{"two books", {"b.xlsx", "c.xlsx", "--list"}, "c.xlsx"},
        WrongUsage{"list and check", {"b.xlsx", "--list", "--check"}, "--check"},
        WrongUsage{"JSON of nothing", {"b.xlsx", "--check", "--json"}, "--list"},
        WrongUsage{"all and some", {"b.xlsx", "--list", "--all", "--items", "A"}, "--items"},
        WrongUsage{
            "attach and deck", {"--attach", "--into", "d.pptx", "--output", "o.pptx"}, "--attach"},
        WrongUsage{"slides of nothing",
                   {"b.xlsx", "--output", "o.pptx", "--slides", "predefined"},
                   "--into"},
        WrongUsage{"unknown style", {"b.xlsx", "--list", "--style", "neon"}, "neon"},
        WrongUsage{"unknown destination", {"b.xlsx", "--list", "--to", "paper"}, "paper"},
        WrongUsage{"share beyond one", {"b.xlsx", "--list", "--top", "1.5"}, "--top"},
        WrongUsage{"share below nothing", {"b.xlsx", "--list", "--left", "-0.1"}, "--left"},
        WrongUsage{"too wide", {"b.xlsx", "--list", "--width", "1.2"}, "--width"},
        WrongUsage{"percent", {"b.xlsx", "--list", "--width", "90%"}, "90%"}));

TEST(Options, HelpShowsExamplesAndExitCodes) {
    const auto result = unattended::parseOptions({"--help"});
    const auto& end = std::get<ParseEnd>(result);
    EXPECT_EQ(end.exitCode, 0);
    for (const char* text : {"Examples:", "--captions captions.csv", "3 blocked by the review"}) {
        EXPECT_NE(end.out.find(text), std::string::npos) << text;
    }
}

TEST(Options, VersionNamesTheProgram) {
    const auto result = unattended::parseOptions({"--version"});
    const auto& end = std::get<ParseEnd>(result);
    EXPECT_EQ(end.exitCode, 0);
    EXPECT_EQ(end.out.rfind("murvane-export ", 0), 0U) << end.out;
}

}  // namespace

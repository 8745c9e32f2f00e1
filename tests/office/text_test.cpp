#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "office/text.h"

namespace {

TEST(Text, ReadsTheNumberThatATextBeginsWith) {
    const std::vector<std::pair<const char*, double>> cases = {
        {"12", 12},    {"12 px", 12},  {" 1 2", 12},  {"0.9", 0.9}, {"-.5x", -0.5},
        {"+3", 3},     {"1,5", 1},     {"abc", 0},    {"", 0},      {"inf", 0},
        {"1e3", 1000}, {"Default", 0}, {"3 to 4", 3}, {"+-5", 0},
    };
    for (const auto& [text, number] : cases) EXPECT_EQ(office::leadingNumber(text), number) << text;
}

TEST(Text, TakesOnlyAWholeTextForANumber) {
    EXPECT_EQ(office::numberOf(" 12.5 "), 12.5);
    for (const char* text : {"", " ", "12 px", "1,5", "1 2", "0x10", "nan", "--1", "+-5"}) {
        EXPECT_FALSE(office::numberOf(text)) << text;
    }
}

TEST(Text, IgnoresTheCaseOfLettersAlone) {
    const std::tuple<const char*, const char*, bool> cases[] = {
        {"SlideIndex", "slideindex", true}, {"Slide", "Slides", false},  {"[", "{", false},
        {"ÜBERSICHT", "Übersicht", true},   {"Straße", "STRASSE", true}, {"Ελλάς", "ΕΛΛΆΣ", true},
        {"Übersicht", "Ubersicht", false},
    };
    for (const auto& [left, right, same] : cases)
        EXPECT_EQ(office::sameIgnoringCase(left, right), same) << left;
}

TEST(Text, DividesAtEveryKindOfLineBreak) {
    using Lines = std::vector<std::string>;
    EXPECT_EQ(office::linesOf("a\nb\rc\r\nd\n\ne\n"), (Lines{"a", "b", "c", "d", "", "e", ""}));
    EXPECT_EQ(office::linesOf(""), Lines{""});
}

TEST(Text, TellsNamesakesApart) {
    using Names = std::vector<std::string>;
    EXPECT_EQ(office::distinctNames({"Sales", "sales (2)", "SALES", "", "Sales", "", "Ü", "ü"}),
              (Names{"Sales", "sales (2)", "SALES (3)", "", "Sales (4)", "", "Ü", "ü (2)"}));
}

TEST(Text, KeepsTheLettersOfEveryScriptInALink) {
    EXPECT_EQ(office::linkWord("a ü/売上\xFF\xEF\xBF\xBE%"), "a%20ü%2F売上%FF%EF%BF%BE%25");
}

TEST(Text, SortsAsTheEyeDoes) {
    const std::vector<std::string> sorted = {"", "10", "9", "Apfel", "ärger", "Zebra", "日本"};
    for (std::size_t i = 1; i < sorted.size(); ++i) {
        EXPECT_LT(office::sortKey(sorted[i - 1]), office::sortKey(sorted[i])) << sorted[i];
    }
    EXPECT_EQ(office::sortKey("beta"), office::sortKey("Beta"));
    EXPECT_NE(office::sortKey("Ubersicht"), office::sortKey("Übersicht"));
}

}  // namespace

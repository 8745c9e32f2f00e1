#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "panels/summary.h"

namespace {

using panels::BuildSummaryHtml;

struct Expected {
    std::string count;
    std::string lead;
    std::string destination;
    std::string format;
    std::string detail;
};

std::string summaryOf(const Expected& parts) {
    const auto line = [](const std::string& cssClass, const std::string& text) {
        return text.empty() ? std::string() : "<div class=\"" + cssClass + "\">" + text + "</div>";
    };
    return "<div class=\"summary\"><div class=\"count\">" + parts.count +
           "</div><div class=\"summary-text\"><div class=\"summary-lead\">" + parts.lead +
           "</div>" + line("dest-name", parts.destination) + line("format-tag", parts.format) +
           line("detail-note", parts.detail) + "</div></div>";
}

TEST(Summary, TellsCountLeadDestinationFormatAndDetailApart) {
    const std::pair<std::string, Expected> cases[] = {
        {"3 object(s) will be pasted to\r\nBook1.pptx\r\nas Pictures",
         {"3", "object(s) will be pasted to", "Book1.pptx", "Pictures", ""}},
        {"3 object(s) will be pasted to\rBook1.pptx\ras Pictures",
         {"3", "object(s) will be pasted to", "Book1.pptx", "Pictures", ""}},
        {"12 Image File(s) will be saved to\nC:\\Pictures",
         {"12", "12 Image File(s) will be", "C:\\Pictures", "", ""}},
        {"2 objects\nDeck\nas Pictures\nstarting at slide 4\nin order",
         {"2", "objects", "Deck", "Pictures", "starting at slide 4 in order"}},
        {"2 objects\nDeck\nin order\nstarting at slide 4",
         {"2", "objects", "Deck", "in order", "starting at slide 4"}},
        {"2 objects\nDeck\nassembled", {"2", "objects", "Deck", "sembled", ""}},
        {"2 objects\n\nDeck", {"2", "objects", "Deck", "", ""}},
        {"2 objects\n", {"2", "objects", "", "", ""}},
        {"1 object exported to A, inserted in B", {"1", "1 object exported to A,", "B", "", ""}},
        {"3 object(s) will be inserted in C:\\MurvaneHTML\\MurvaneXXX.Html",
         {"3", "3 object(s) will be", "C:\\MurvaneHTML\\MurvaneXXX.Html", "", ""}},
        {"1 object\n<Deck>", {"1", "object", "&lt;Deck&gt;", "", ""}},
    };
    for (const auto& [message, parts] : cases)
        EXPECT_EQ(BuildSummaryHtml(message, ""), summaryOf(parts)) << message;
}

TEST(Summary, IsEmptyForAMessageOfAnotherShape) {
    for (const char* message : {"No objects were selected for pasting", "0 objects", "objects", "",
                                "\n3 objects\nDeck", "three objects\nDeck", "3 pictures\nDeck"}) {
        EXPECT_EQ(BuildSummaryHtml(message, "PowerPoint"), "") << message;
    }
}

TEST(Summary, DrawsABadgeForEveryDestinationThatItKnows) {
    const std::pair<const char*, const char*> cases[] = {
        {"PowerPoint", "app-badge ppt\">PPT<"}, {" pp ", "app-badge ppt\">PPT<"},
        {"Word", "app-badge word\">DOC<"},      {"PDF", "app-badge pdf\">PDF<"},
        {"htm", "app-badge html\">HTML<"},      {"folder", "app-badge images\">IMG<"}};
    for (const auto& [word, badge] : cases)
        EXPECT_NE(BuildSummaryHtml("2 objects\nDeck", word).find(badge), std::string::npos) << word;
}

}  // namespace

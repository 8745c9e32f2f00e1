#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "panels/markup.h"

namespace {

using panels::HtmlEscape;
using panels::TextToParagraphs;

TEST(Markup, EscapesTheFiveCharactersOnceEach) {
    EXPECT_EQ(HtmlEscape(R"(<b> & "it's")"), "&lt;b&gt; &amp; &quot;it&#39;s&quot;");
    EXPECT_EQ(HtmlEscape("&amp;"), "&amp;amp;");
    EXPECT_EQ(HtmlEscape("Größe – 5 €"), "Größe – 5 €");
}

TEST(Markup, MakesAParagraphOfEveryLineThatIsNotBlank) {
    struct Case {
        std::string text;
        std::string paragraphs;
    };
    const std::vector<Case> cases = {
        {"one", "<p>one</p>"},
        {"  one  \r\n\r\n two", "<p>one</p><p>two</p>"},
        {"one\rtwo\nthree", "<p>one</p><p>two</p><p>three</p>"},
        {"a < b", "<p>a &lt; b</p>"},
        {"", "<p></p>"},
        {" \r ", "<p> \r </p>"},
    };
    for (const Case& it : cases) EXPECT_EQ(TextToParagraphs(it.text), it.paragraphs) << it.text;
}

}  // namespace

#include <gtest/gtest.h>

#include <string>

#include "panels/markup.h"
#include "panels/panel_page.h"
#include "panels/style_sheets.h"
#include "support/approved.h"

namespace {

using support::expectApproved;

void expectPanel(const panels::ActionPanel& panel, const std::string& name) {
    expectApproved(support::withoutStyle(panels::BuildActionPanelHtml(panel), panels::PanelCss()),
                   name);
}

TEST(PanelPage, ShowsASummaryWithToolsAndOptions) {
    panels::ActionPanel panel;
    panel.message =
        "3 object(s) will be pasted to\rQ3 <draft>.pptx\ras Pictures\rstarting at slide 4";
    panel.kind = "info";
    panel.destinationWord = "PowerPoint";
    panel.options = panels::OptionsBlockHtml(
        "Options", panels::OptionRowHtml("slideTitle", "Add slide titles", true, true) +
                       panels::OptionRowHtml("checkShadow", "Shadow", false, false));
    panel.tools = panels::ToolBarHtml(
        panels::ToolButtonHtml("layout", "Layout", "tool-icon-layout", "Set the placement"));
    expectPanel(panel, "summary_with_options.html");
}

TEST(PanelPage, ShowsTheChoicesAndFieldsOfAnImageExport) {
    panels::ActionPanel panel;
    panel.message = "2 image file(s) will be saved to C:\\MurvaneImages";
    panel.kind = "success";
    panel.destinationWord = "Images";
    panel.options =
        panels::ChoiceGroupHtml(
            "Format", panels::ChoiceChipHtml("format", "png", "PNG", true, true) +
                          panels::ChoiceChipHtml("format", "tiff", "TIFF", false, false)) +
        panels::FieldRowHtml("HtmlWidthFactor", "Width", "80", "%", true);
    expectPanel(panel, "image_choices.html");
}

TEST(PanelPage, FallsBackOnParagraphsAndDrawsNoEmptyBlocks) {
    panels::ActionPanel panel;
    panel.message = "No objects were selected for pasting\r\n\r\nCheck \"at least\" one";
    panel.kind = "Warn";
    panel.destinationWord = "PowerPoint";
    expectPanel(panel, "nothing_selected.html");
}

TEST(PanelBlocks, HaveNoLinkWhileDisabledAndVanishWhileEmpty) {
    EXPECT_EQ(panels::OptionRowHtml("k", "It's", true, false).find("href"), std::string::npos);
    EXPECT_EQ(panels::ChoiceChipHtml("g", "k", "PNG", true, false).find("href"), std::string::npos);
    EXPECT_NE(panels::FieldRowHtml("width", "Width", "80", "%", false)
                  .find(" value=\"80\" disabled=\"disabled\" />"),
              std::string::npos);
    EXPECT_EQ(panels::ToolBarHtml("  "), "");
    EXPECT_EQ(panels::OptionsBlockHtml("Options", " "), "");
    EXPECT_EQ(panels::ChoiceGroupHtml("Format", ""), "");
    EXPECT_EQ(panels::OptionsBlockHtml(" ", "<i>rows</i>"),
              "<div class=\"opts\"><i>rows</i></div>");
    EXPECT_EQ(panels::ToolButtonHtml("style", "Style", "icon", "  ").find("title"),
              std::string::npos);
}

TEST(Markup, EscapesTheFiveCharactersOnceEachAndMakesAParagraphOfEveryLineThatIsNotBlank) {
    EXPECT_EQ(panels::HtmlEscape(R"(<b> & "it's")"), "&lt;b&gt; &amp; &quot;it&#39;s&quot;");
    EXPECT_EQ(panels::HtmlEscape("&amp; Größe – 5 €"), "&amp;amp; Größe – 5 €");
    const std::pair<const char*, const char*> cases[] = {
        {"one", "<p>one</p>"},
        {"  one  \r\n\r\n two", "<p>one</p><p>two</p>"},
        {"one\rtwo\nthree", "<p>one</p><p>two</p><p>three</p>"},
        {"a < b", "<p>a &lt; b</p>"},
        {"", "<p></p>"},
        {" \r ", "<p> \r </p>"},
    };
    for (const auto& [text, paragraphs] : cases)
        EXPECT_EQ(panels::TextToParagraphs(text), paragraphs) << text;
}

}  // namespace

#include <gtest/gtest.h>

#include <string>

#include "panels/panel_page.h"

namespace {

using namespace panels;  // NOLINT(google-build-using-namespace): the blocks are what this file is
                         // about

TEST(PanelBlocks, GiveAToolButtonATooltipOnlyWhenThereIsOne) {
    EXPECT_EQ(ToolButtonHtml("style", "Picture <style>", "tool-icon-style", "Pick \"one\""),
              "<a href=\"murvane://action/style\" class=\"tool-btn\" title=\"Pick "
              "&quot;one&quot;\"><span class=\"tool-icon tool-icon-style\"></span>"
              "<span class=\"tool-label\">Picture &lt;style&gt;</span></a>");
    EXPECT_EQ(ToolButtonHtml("style", "Style", "tool-icon-style", "  ").find("title"),
              std::string::npos);
}

TEST(PanelBlocks, LinkAnOptionRowOnlyWhileItIsEnabled) {
    EXPECT_EQ(OptionRowHtml("slideTitle", "It's a title", true, true),
              "<a href=\"murvane://toggle/slideTitle\" class=\"opt-row checked\">"
              "<span class=\"opt-box\">&#10003;</span>"
              "<span class=\"opt-label\">It&#39;s a title</span></a>");
    EXPECT_EQ(OptionRowHtml("slideTitle", "Title", false, false),
              "<div class=\"opt-row disabled\"><span class=\"opt-box\">&nbsp;</span>"
              "<span class=\"opt-label\">Title</span></div>");
    EXPECT_EQ(
        OptionRowHtml("k", "Title", true, false).find("<div class=\"opt-row checked disabled\">"),
        0U);
}

TEST(PanelBlocks, LinkAChipOnlyWhileItIsEnabled) {
    EXPECT_EQ(ChoiceChipHtml("format", "png", "PNG", true, true),
              "<a href=\"murvane://select/format/png\" class=\"choice-chip selected\">PNG</a>");
    EXPECT_EQ(ChoiceChipHtml("format", "gif", "G&F", false, false),
              "<span class=\"choice-chip disabled\">G&amp;F</span>");
}

TEST(PanelBlocks, DisableAFieldByItsAttribute) {
    EXPECT_EQ(FieldRowHtml("width", "Width", "80", "%", true),
              "<div class=\"field-row\"><span class=\"field-label\">Width</span>"
              "<input type=\"text\" id=\"width\" class=\"field-input\" value=\"80\" />"
              "<span class=\"field-suffix\">%</span></div>");
    EXPECT_NE(FieldRowHtml("width", "Width", "80", "%", false)
                  .find(" value=\"80\" disabled=\"disabled\" />"),
              std::string::npos);
}

TEST(PanelBlocks, VanishWhenTheyHoldNothing) {
    EXPECT_EQ(ToolBarHtml("  "), "");
    EXPECT_EQ(OptionsBlockHtml("Options", " "), "");
    EXPECT_EQ(ChoiceGroupHtml("Format", ""), "");
}

TEST(PanelBlocks, LeaveOutTheTitleLineOfUntitledOptions) {
    EXPECT_EQ(OptionsBlockHtml(" ", "<i>rows</i>"), "<div class=\"opts\"><i>rows</i></div>");
    EXPECT_EQ(OptionsBlockHtml("A & B", "<i>rows</i>"),
              "<div class=\"opts\"><div class=\"opts-title\">A &amp; B</div><i>rows</i></div>");
}

}  // namespace

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "forms/form.h"
#include "forms_double/windowless_desktop.h"
#include "panels/action_panel.h"
#include "panels/page_file.h"
#include "panels/panel_page.h"
#include "session_doubles/scripted_host.h"

namespace {

using forms::Place;

TEST(PanelLinks, GiveTheKeyBehindTheirPrefix) {
    const std::tuple<std::string, std::string, std::string, std::string> cases[] = {
        {"murvane://action/style", "style", "", ""},
        {"murvane://toggle/slideTitle", "", "slideTitle", ""},
        {"murvane://select/format/png", "", "", "format/png"},
        {"MURVANE://TOGGLE/SlideTitle?x=1#y", "", "SlideTitle", ""},
        {"murvane://toggle/a#b?c", "", "a", ""},
        {"about:blank murvane://action/ layout ", "layout", "", ""},
        {"murvane://toggle/a%20b", "", "a%20b", ""},
        {"murvane://toggle/?x", "", "", ""},
        {"file:///temporary/MurvaneDialogStatus.html", "", "", ""},
        {"", "", "", ""},
    };
    for (const auto& [url, action, toggle, select] : cases) {
        EXPECT_EQ(panels::ActionKeyFromUrl(url), action) << url;
        EXPECT_EQ(panels::ToggleKeyFromUrl(url), toggle) << url;
        EXPECT_EQ(panels::SelectKeyFromUrl(url), select) << url;
    }
}

/// A dialog's furniture and nothing else.
struct Sheet : forms::Form {
    Sheet(forms::Desktop& desktop, forms::Twips width, forms::Twips height)
        : Form(desktop, "Dialog", width, height) {}

    forms::WebBrowser wbStatus{*this, "wbStatus", {}};
    forms::Label lblActionBar{*this, "lblActionBar", {}};
    forms::Label lblActionBorder{*this, "lblActionBorder", {}};
    forms::CommandButton ContinueOk{*this, "ContinueOk", {}};

    [[nodiscard]] panels::ActionBar bar() {
        return {.bar = lblActionBar, .button = ContinueOk, .border = lblActionBorder};
    }
};

class ActionPanel : public testing::Test {
protected:
    ActionPanel() { desktop.page.files = &host.written; }

    forms_double::WindowlessDesktop desktop;
    session_doubles::ScriptedHost host;
    Sheet sheet{desktop, 9000, 7200};
};

TEST_F(ActionPanel, KeepsAReadableHeightOnASmallForm) {
    const std::pair<forms::Twips, forms::Twips> cases[] = {{7200, 5667}, {2000, 1500}, {500, 1500}};
    for (const auto& [formHeight, height] : cases) {
        Sheet form(desktop, 6000, formHeight);
        panels::LayoutActionBar(form, form.bar());
        panels::LayoutActionBrowser(form, form.wbStatus, form.lblActionBar, 720, 48);
        EXPECT_EQ(form.wbStatus.place, (Place{120, 720, 5760, height})) << formHeight;
    }
}

TEST_F(ActionPanel, ShowsItsPageFromOneFileAsALineOfText) {
    desktop.show(sheet, forms::ShowMode::Modeless);
    panels::NavigatePanelFile(host, sheet.wbStatus, "<p>page</p>");
    EXPECT_EQ(host.written.at("/temporary/MurvaneDialogStatus.html"), "<p>page</p>\r\n");
    desktop.letEventsRun();
    EXPECT_EQ(desktop.browser(sheet)->page(), "<p>page</p>\r\n");
    EXPECT_EQ(desktop.browser(sheet)->navigations,
              (std::vector<std::string>{"file:///temporary/MurvaneDialogStatus.html"}));
    host.temporaryFolderIsFull = true;
    panels::NavigatePanelFile(host, sheet.wbStatus, "not written");
    desktop.letEventsRun();
    EXPECT_EQ(desktop.browser(sheet)->page(), "<p>page</p>\r\n") << "the earlier one";
    EXPECT_EQ(desktop.browser(sheet)->navigations.size(), 1U);
}

TEST_F(ActionPanel, LeavesTheBrowserAloneForAnEmptyPageAndWithoutATemporaryFolder) {
    panels::NavigatePanelFile(host, sheet.wbStatus, "");
    host.hasTemporaryFolder = false;
    panels::NavigatePanelFile(host, sheet.wbStatus, "page");
    EXPECT_EQ(sheet.wbStatus.url(), "");
    EXPECT_TRUE(host.written.empty());
}

TEST_F(ActionPanel, ReadsATypedFieldOrElseWhatTheCallerHas) {
    desktop.page.fields = {{"HtmlWidthFactor", " 80 "}, {"Empty", ""}};
    EXPECT_EQ(panels::ReadFieldValue(sheet.wbStatus, "HtmlWidthFactor", "100"), "100");
    desktop.show(sheet, forms::ShowMode::Modeless);
    panels::NavigatePanelFile(host, sheet.wbStatus, "page");
    EXPECT_EQ(panels::ReadFieldValue(sheet.wbStatus, "HtmlWidthFactor", "100"), "100");
    desktop.letEventsRun();
    EXPECT_EQ(panels::ReadFieldValue(sheet.wbStatus, "HtmlWidthFactor", "100"), "80");
    EXPECT_EQ(panels::ReadFieldValue(sheet.wbStatus, "Empty", "100"), "");
    EXPECT_EQ(panels::ReadFieldValue(sheet.wbStatus, "Other", "100"), "100");
}

}  // namespace

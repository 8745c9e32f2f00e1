#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "forms_double/user.h"
#include "forms_double/windowless_desktop.h"
#include "panels/help.h"
#include "panels/help_page.h"
#include "session_doubles/scripted_host.h"

namespace {

using forms_double::ScriptedBrowser;
using namespace std::chrono_literals;

const std::string folder = "/program/help/";
const std::string mark = R"(<style id="murvaneHelpHostFix">)";

TEST(HelpPage, TakesTheStyleOfTheReaderAtTheEndOfItsHead) {
    struct Case {
        std::string page, before;
    };
    for (const Case& it : {
             Case{"<head><title>A</title></head><body></head>", "<head><title>A</title>"},
             Case{"<HEAD></HEAD><p>", "<HEAD>"},
             Case{"<p>no head", ""},
             Case{"", ""},
         }) {
        const std::string made = panels::injectHelpStyle(it.page);
        ASSERT_TRUE(made.starts_with(it.before + mark)) << made;
        EXPECT_EQ(made.substr(made.rfind("</style>") + 8), it.page.substr(it.before.size()));
    }
    const std::string style = panels::injectHelpStyle("");
    EXPECT_NE(
        style.find(".content-area h3{color:#74b9ff !important;margin:20px 0 12px !important;"),
        std::string::npos);
    EXPECT_NE(style.find(".footer{display:none !important}</style>"), std::string::npos);
}

TEST(HelpPage, StartsItsLinksFromItsOwnFolder) {
    const std::string base = R"(<base href="file:///help/">)";
    for (const auto& [page, made] : std::vector<std::pair<std::string, std::string>>{
             {"<html><head><link>", "<html><head>" + base + "<link>"},
             {"<HEAD lang='en'>", "<HEAD lang='en'>" + base},
             {"<header></header>", base + "<header></header>"},
         }) {
        EXPECT_EQ(panels::withBase(page, "file:///help"), made);
    }
}

TEST(HelpPage, ShowsAMessageAsTextWithItsQuotesAsTheyStand) {
    EXPECT_NE(
        panels::helpMessagePage("a<b> & 'c' \"d\"\r\ne")
            .find("<h3>Murvane Help</h3><p>a&lt;b&gt; &amp; 'c' \"d\"<br>e</p></body></html>"),
        std::string::npos);
}

struct HelpTest : testing::Test {
    HelpTest() {
        desktop.page.files = &host.written;
        for (const char* file : {"help_general.html", "help_captions.html", "help_items_table.html",
                                 "help_export_options.html", "help_popup_html101.html",
                                 "help_powerpoint.html", "faq.html"}) {
            host.files.insert(folder + file);
            host.written[folder + file] =
                "<head><title>The " + std::string(file) + "</title></head>\n" + link("faq.html");
        }
    }
    /// As the engine spells it.
    static std::string link(const std::string& file) {
        return R"(<a href="file:///program/help/)" + file + "\">";
    }
    /// What the reader shows; it is closed afterwards.
    std::string titleOf(const std::function<void()>& ask) {
        std::string title;
        desktop.answer("HepPopup", [&](forms::Form& form) {
            title = form.find("TitelBar1")->caption;
            forms_double::pressEscape(form);
        });
        ask();
        return title;
    }

    forms_double::WindowlessDesktop desktop;
    session_doubles::ScriptedHost host;
    panels::Help help{desktop, host};
};

TEST_F(HelpTest, ReadsAPageTrimsItAndFitsItToTheWindow) {
    desktop.answer("HepPopup", [&](forms::Form& form) {
        desktop.advance(200ms);
        const ScriptedBrowser& page = *desktop.browser(form);
        EXPECT_TRUE(form.topmost);
        EXPECT_EQ(form.place.left, (desktop.size.width - form.place.width) / 2);
        EXPECT_EQ(page.navigations, std::vector<std::string>{"file:///temporary/MurvaneHelp.html"});
        EXPECT_NE(page.page().find(mark), std::string::npos);
        EXPECT_NE(page.page().find("</head>\r\n"), std::string::npos);
        EXPECT_EQ(page.divStyles.at("main-header display"), "none");
        EXPECT_EQ(page.divStyles.at("content-area height"),
                  std::to_string(form.find("wbHelp")->place.height / 15) + "px");
        EXPECT_EQ(page.bodyStyles.at("padding"), "0");
        EXPECT_FALSE(form.timers().front()->enabled);
        forms_double::press(form, "btnClose");
    });
    help.ShowHelp("faq.html");
    EXPECT_TRUE(desktop.loadedForms().empty());
}

TEST_F(HelpTest, SaysWhatItCannotShowAndGivesUpWaitingForAPageThatNeverComes) {
    struct Case {
        std::string path, says;
    };
    for (const Case& it : {Case{"", "No help file was selected."},
                           Case{"/a/<b>.html", "could not be read:<br>/a/&lt;b&gt;.html"}}) {
        desktop.answer("HepPopup", [&](forms::Form& form) {
            desktop.advance(1ms);
            EXPECT_NE(desktop.browser(form)->page().find(it.says), std::string::npos) << it.says;
            EXPECT_EQ(desktop.browser(form)->bodyStyles.at("padding"), "24px");
            forms_double::close(form);
        });
        help.ShowHelpPopup("Help", it.path);
    }
    desktop.page.completes = false;
    desktop.answer("HepPopup", [&](forms::Form& form) {
        desktop.advance(16 * 80ms - 1ms);
        EXPECT_TRUE(form.timers().front()->enabled);
        desktop.advance(81ms);
        EXPECT_FALSE(form.timers().front()->enabled);
        forms_double::close(form);
    });
    help.ShowHelp("faq.html");
}

TEST_F(HelpTest, FollowsItsOwnLinksInsideAndThoseOfTheWebOutside) {
    host.written[folder + "faq.html"] = link("help_general.html#top") + link("none.html") +
                                        R"(<a href="https://x.org/?a"><a href="javascript:x">)";
    desktop.answer("HepPopup", [&](forms::Form& form) {
        desktop.advance(1ms);
        ScriptedBrowser& page = *desktop.browser(form);
        for (const char* elsewhere :
             {"https://x.org/?a", "javascript:x", "file:///program/help/none.html"}) {
            EXPECT_TRUE(page.click(elsewhere));
        }
        EXPECT_EQ(host.links, std::vector<std::string>{"https://x.org/?a"});
        EXPECT_TRUE(page.click("file:///program/help/help_general.html#top"));
        EXPECT_EQ(form.find("TitelBar1")->caption, " The help_general.html");
        desktop.advance(1ms);
        EXPECT_TRUE(page.hasLink("file:///program/help/faq.html"));
        forms_double::close(form);
    });
    help.ShowHelp("faq.html");
}

TEST_F(HelpTest, OpensThePageThatBelongsToAControlOrAForm) {
    struct Case {
        std::string form, control, file;
    };
    for (const Case& it : {
             Case{"UserformObj", "lstItems", "help_items_table.html"},
             Case{"UserformObj", "cmdExport", "help_export_options.html"},
             Case{"UserformObj", "txtSlideNumber", "help_captions.html"},
             Case{"UserformObj", "LISTCHARTS", "help_items_table.html"},
             Case{"UserformObj", "SlideTitle", "help_captions.html"},
             Case{"UserformObj", "Option1", "help_export_options.html"},
             Case{"UserformObj", "cmdItemsHelp", "help_popup_html101.html"},
             Case{"UserformObj", "ActiveWbk", "help_general.html"},
             Case{"Dialog", "SlideTitle", "help_powerpoint.html"},
             Case{"MurvaneNotice", "btnOK", "help_general.html"},
         }) {
        forms::Form form(desktop, it.form, 100, 100);
        forms::CommandButton control(form, it.control, {});
        form.focus = &control;
        EXPECT_EQ(titleOf([&] { desktop.onHelp(form); }), " The " + it.file) << it.control;
    }
    forms::Form images(desktop, "DialogImageFiles", 100, 100);
    desktop.answer("HepPopup", [&](forms::Form& form) {
        desktop.advance(1ms);
        EXPECT_EQ(desktop.browser(form)->navigations,
                  std::vector<std::string>{"file:///temporary/MurvaneHelp.html#images"});
        EXPECT_TRUE(desktop.browser(form)->hasLink("file:///program/help/faq.html"));
        forms_double::close(form);
    });
    desktop.onHelp(images);
    struct WithHelpOfItsOwn : forms::Form {
        using Form::Form;
        bool Form_Help() override { return true; }
    };
    WithHelpOfItsOwn own(desktop, "UserformObj", 100, 100);
    desktop.onHelp(own);
    forms::Form progress(desktop, "Progress", 100, 100);
    desktop.onHelp(progress);
    EXPECT_TRUE(desktop.loadedForms().empty()) << "it would hold up the export";
}

TEST_F(HelpTest, KnowsItsFilesAndNamesOneThatIsMissing) {
    help.ShowHelp("help_none.html");
    ASSERT_EQ(desktop.messages.size() + host.messages.size(), 1U);
    EXPECT_EQ(host.messages[0].text, "Help file not found: help_none.html");
    EXPECT_EQ(host.messages[0].title, "Error");
    EXPECT_TRUE(help.HelpFileExists("faq.html"));
}

}  // namespace

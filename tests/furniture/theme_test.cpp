#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "forms/controls.h"
#include "forms/form.h"
#include "forms/web_browser.h"
#include "forms_double/windowless_desktop.h"
#include "furniture/palette.h"
#include "furniture/theme.h"

namespace {

using forms::Colour;
namespace palette = furniture::palette;

class Theme : public testing::Test {
protected:
    forms_double::WindowlessDesktop desktop;
    forms::Form sheet{desktop, "Sheet", 6000, 6000};
};

TEST_F(Theme, StylesButtonsByTheirNames) {
    struct Case {
        std::string name;
        std::string caption;
        std::string shown;
        Colour ground;
        double sizePt;
        std::string font = "Tahoma";
        bool bold = true;
    };
    const Colour accent = palette::ThemeAccentButton;
    const Colour neutral = palette::ThemeNeutralButton;
    const Colour quiet = palette::ThemeQuietButton;
    const std::vector<Case> cases = {
        {"PasteIT", "Go", "Continue  >", accent, 12},
        {"Styles", " Apply it ", "Apply it", accent, 10},
        {"btnClose", "  ", "Apply", accent, 10},
        {"Up", "x", "5", neutral, 10, "Marlett", false},
        {"cmdCancel", "", "Close", quiet, 10.5},
        {"BTNOK", "", "OK", accent, 10.5},
        {"cmdHelpExport", "Help me", "?", quiet, 8.25},
        {"CreateBlankPPT", " New ", "New", neutral, 9.75},
    };
    for (const Case& it : cases) {
        forms::Form form(desktop, "Sheet", 6000, 6000);
        forms::Frame frame(form, "Frame1", {});
        forms::CommandButton button(form, it.name, {}, &frame);
        button.caption = it.caption;
        furniture::ApplyTheme(form);
        EXPECT_EQ(button.caption, it.shown) << it.name;
        EXPECT_EQ(button.backColour, it.ground) << it.name;
        EXPECT_EQ(button.font, (forms::Font{it.font, it.sizePt, it.bold})) << it.name;
        EXPECT_EQ(button.foreColour, std::nullopt) << it.name;
    }
}

TEST_F(Theme, PaintsWhatHasAGroundAndLeavesTheRest) {
    forms::Frame frame(sheet, "Frame1", {});
    forms::CheckBox check(sheet, "Check1", {}, &frame);
    forms::OptionButton graphical(sheet, "Option1", {});
    graphical.graphical = true;
    forms::Label clear(sheet, "Label1", {});
    clear.transparent = true;
    forms::Label preview(sheet, "imgChart", {});
    forms::CommandButton hidden(sheet, "Command1", {});
    hidden.visible = false;
    forms::Frame panel(sheet, "SlideNb", {});
    forms::Label inPanel(sheet, "Label20", {}, &panel);
    forms::CheckBox other(sheet, "Check9", {}, &panel);
    furniture::ApplyTheme(sheet);

    struct Case {
        const forms::Control& control;
        std::optional<Colour> ground;
        std::optional<Colour> ink;
    };
    const auto white = palette::ThemeText;
    for (const Case& it :
         {Case{frame, palette::ThemeSurface, white}, Case{check, palette::ThemeSurface, white},
          Case{graphical, palette::ThemeField, white}, Case{clear, std::nullopt, white},
          Case{preview, std::nullopt, std::nullopt}, Case{hidden, std::nullopt, std::nullopt},
          Case{inPanel, std::nullopt, white}, Case{other, std::nullopt, std::nullopt}}) {
        EXPECT_EQ(it.control.backColour, it.ground) << it.control.name();
        EXPECT_EQ(it.control.foreColour, it.ink) << it.control.name();
    }
}

TEST_F(Theme, PaintsThePageOfABrowserOnceItIsComplete) {
    forms::WebBrowser browser(sheet, "wbStatus", {});
    desktop.show(sheet, forms::ShowMode::Modeless);
    desktop.page.completes = false;
    browser.navigate("file:///nowhere.html");
    desktop.letEventsRun();
    furniture::ApplyTheme(sheet);
    EXPECT_TRUE(desktop.browser(sheet)->styles.empty());
    desktop.page.completes = true;
    desktop.letEventsRun();
    furniture::ApplyTheme(sheet);
    EXPECT_EQ(desktop.browser(sheet)->styles.at("background-color"), "#111827");
    EXPECT_EQ(desktop.browser(sheet)->styles.at("height"), "100%");
    EXPECT_EQ(desktop.browser(sheet)->bodyStyles.at("margin"), "0");
    EXPECT_FALSE(desktop.browser(sheet)->styles.contains("margin"));
}

}  // namespace

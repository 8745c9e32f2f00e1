#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "forms/web_browser.h"
#include "forms_double/user.h"
#include "forms_double/windowless_desktop.h"
#include "furniture/progress_bar.h"
#include "furniture/progress_form.h"
#include "furniture/shadow.h"
#include "furniture/theme.h"
#include "furniture/title_bar.h"

namespace {

using furniture::clsShadow;
using furniture::ProgressBar;
using furniture::TitleBar;

struct Sheet : forms::Form {
    explicit Sheet(forms::Desktop& desktop) : Form(desktop, "Sheet", 6000, 6000) {}
    TitleBar bar{*this, "TitelBar1", {}};
    ProgressBar progress{*this, "prbHorizontal", {}};
};

class Furniture : public testing::Test {
protected:
    forms_double::WindowlessDesktop desktop;
    Sheet sheet{desktop};
};

TEST_F(Furniture, ABarHoldsAPercentageAndTellsOfEachChangeOnce) {
    std::vector<int> told;
    sheet.progress.onChange = [&] { told.push_back(sheet.progress.value()); };
    for (const int value : {150, 100, -5, 0, 40}) sheet.progress.setValue(value);
    EXPECT_EQ(told, (std::vector<int>{100, 0, 40}));
    sheet.progress.caption = "40%";
    sheet.progress.Clear();
    EXPECT_EQ(sheet.progress.value(), 0);
    EXPECT_EQ(sheet.progress.caption, "");
    EXPECT_EQ(told.size(), 3U);
}

TEST_F(Furniture, ATitleBarClosesMinimisesAndMaximisesWhereItMay) {
    using forms::WindowState;
    const auto stateAfter = [&](void (TitleBar::*action)()) {
        (sheet.bar.*action)();
        return sheet.windowState;
    };
    desktop.load(sheet);
    EXPECT_EQ(stateAfter(&TitleBar::pressMaximise), WindowState::Maximised);
    EXPECT_EQ(stateAfter(&TitleBar::pressMaximise), WindowState::Normal);
    sheet.bar.ShowMaximizedEnabled = false;
    EXPECT_EQ(stateAfter(&TitleBar::pressMaximise), WindowState::Normal);
    EXPECT_EQ(stateAfter(&TitleBar::doubleClick), WindowState::Normal) << "it can't be enlarged";
    sheet.resizable = true;
    EXPECT_EQ(stateAfter(&TitleBar::doubleClick), WindowState::Maximised);
    EXPECT_EQ(stateAfter(&TitleBar::pressMinimise), WindowState::Minimised);
    for (const bool closes : {false, true}) {
        sheet.bar.ShowCloseEnabled = closes;
        sheet.bar.pressClose();
        EXPECT_EQ(desktop.isLoaded(sheet), !closes);
    }
}

TEST_F(Furniture, AShadowServesOneFormAndGoesWithItsInstance) {
    std::optional<clsShadow> shadow(std::in_place);
    EXPECT_TRUE(shadow->Shadow(sheet));
    EXPECT_EQ(sheet.shadowDepthPx, 7);
    EXPECT_THROW(shadow->Shadow(sheet), furniture::ShadowRefused);
    shadow->setDepth(12);
    shadow->setColor(0x0000FFU);
    EXPECT_EQ(sheet.shadowDepthPx, 12);
    EXPECT_EQ(sheet.shadowColour, (forms::Colour{255, 0, 0}));
    shadow.reset();
    EXPECT_EQ(sheet.shadowDepthPx, 0);
}

TEST_F(Furniture, TheProgressFormStartsAtNoneOfItsItemsEachTime) {
    furniture::Progress form(desktop);
    for (int i = 0; i < 2; ++i) {
        form.prbHorizontal.setValue(70);
        desktop.show(form, forms::ShowMode::Modeless);
        EXPECT_EQ(form.lblStatus.caption, "0 of 1") << "it never divides by nothing";
        EXPECT_EQ(form.prbHorizontal.value(), 0);
        EXPECT_EQ(form.shadowDepthPx, 7);
        forms_double::close(form);
    }
}

TEST_F(Furniture, AThemePaintsThePageOfABrowserOnceItIsComplete) {
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

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "forms_double/user.h"
#include "forms_double/windowless_desktop.h"
#include "panels/form_progress.h"

namespace {

using forms_double::the;
using Strings = std::vector<std::string>;

class FormProgress : public testing::Test {
protected:
    [[nodiscard]] forms::Form& form(const char* name) const { return *desktop.findLoaded(name); }

    forms_double::WindowlessDesktop desktop;
    panels::FormProgress progress{desktop};
};

TEST_F(FormProgress, ShowsItsFormOnceAndMovesIt) {
    progress.showItem(0, 5);
    progress.showItem(2, 5);
    EXPECT_EQ(desktop.record, Strings{"show Progress modeless"});
    EXPECT_EQ(the<forms::Label>(form("Progress"), "lblStatus").caption, "2 of 5");
    EXPECT_EQ(forms_double::control(form("Progress"), "prbHorizontal").caption, "40%");
    progress.unload();
    EXPECT_EQ(desktop.findLoaded("Progress"), nullptr);
}

TEST_F(FormProgress, IsCancelledByItsButtonByEscapeAndByItsClosing) {
    const std::vector<std::function<void()>> ways = {
        [&] { forms_double::press(form("Progress"), "Cancel"); },
        [&] { forms_double::pressEscape(form("Progress")); },
        [&] { desktop.unload(form("Progress")); },
    };
    for (const auto& way : ways) {
        progress.showItem(1, 5);
        EXPECT_FALSE(progress.cancelled());
        way();
        EXPECT_TRUE(progress.cancelled());
        const Strings before = desktop.record;
        progress.showItem(2, 5);
        EXPECT_TRUE(progress.cancelled());
        EXPECT_EQ(desktop.record, before) << "a form that was closed stays away";
        if (auto* shown = desktop.findLoaded("Progress")) {
            EXPECT_FALSE(the<forms::CommandButton>(*shown, "Cancel").enabled);
        }
        progress.unload();
    }
}

TEST_F(FormProgress, LoadingIsCancelledByTheCrossOfItsForm) {
    for (int run = 0; run < 2; ++run) {
        progress.showLoading();
        EXPECT_EQ(progress.loadingValue(), 0);
        progress.setLoadingValue(40);
        EXPECT_EQ(progress.loadingValue(), 40);
        EXPECT_EQ(forms_double::control(form("MurvaneLoad"), "prbHorizontalOnLoad").caption, "40%");
        EXPECT_FALSE(progress.loadingCancelled());
        the<furniture::TitleBar>(form("MurvaneLoad"), "TitelBar1").pressClose();
        EXPECT_TRUE(progress.loadingCancelled());
        progress.clearLoading();
        EXPECT_EQ(progress.loadingValue(), 0);
        progress.unloadLoading();
        EXPECT_EQ(desktop.findLoaded("MurvaneLoad"), nullptr);
    }
}

}  // namespace

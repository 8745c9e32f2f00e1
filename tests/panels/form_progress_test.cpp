#include <gtest/gtest.h>

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
    panels::FormProgress progress{desktop, [] { return 8; }};
};

TEST_F(FormProgress, LoadsItsFormByWhateverTouchesItFirstAndKeepsThat) {
    progress.setTotal(5);
    EXPECT_EQ(desktop.record, Strings{});
    progress.setCurrent(2);
    progress.setValue(40, "40%");
    progress.show();
    progress.show();
    EXPECT_EQ(desktop.record, Strings{"show Progress modeless"}) << "once, however many items";
    EXPECT_EQ(the<forms::Label>(form("Progress"), "lblStatus").caption, "2 of 5");
    EXPECT_EQ(forms_double::control(form("Progress"), "prbHorizontal").caption, "40%");
    EXPECT_EQ(progress.value(), 40);
}

TEST_F(FormProgress, HoldsAPercentage) {
    progress.setValue(250, "250%");
    EXPECT_EQ(progress.value(), 100);
    progress.setLoadingValue(-3);
    EXPECT_EQ(progress.loadingValue(), 0);
    EXPECT_EQ(forms_double::control(form("MurvaneLoad"), "prbHorizontalOnLoad").caption, "0%");
}

TEST_F(FormProgress, BeginsAgainAfterItWasUnloaded) {
    progress.setCurrent(3);
    progress.setValue(60, "60%");
    progress.show();
    progress.unload();
    EXPECT_EQ(progress.value(), 0);
    progress.show();
    EXPECT_EQ(desktop.record.back(), "show Progress modeless");
    EXPECT_EQ(the<forms::Label>(form("Progress"), "lblStatus").caption, "0 of 8");

    progress.showLoading();
    progress.setLoadingValue(70);
    progress.unloadLoading();
    EXPECT_EQ(progress.loadingValue(), 0);
    EXPECT_EQ(desktop.findLoaded("MurvaneLoad"), nullptr);
}

TEST_F(FormProgress, ClearsTheLoadingBarWithoutAText) {
    progress.showLoading();
    progress.setLoadingValue(70);
    progress.clearLoading();
    EXPECT_EQ(progress.loadingValue(), 0);
    EXPECT_EQ(forms_double::control(form("MurvaneLoad"), "prbHorizontalOnLoad").caption, "");
}

}  // namespace

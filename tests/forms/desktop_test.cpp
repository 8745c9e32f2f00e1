#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "forms/form.h"
#include "forms_double/user.h"
#include "forms_double/windowless_desktop.h"

namespace {

using forms::ShowMode;
using Strings = std::vector<std::string>;

struct Told : forms::Form {
    Told(forms::Desktop& theDesktop, const std::string& name, Strings& record)
        : Form(theDesktop, name, 3000, 3000),
          told(record) {}

    void Form_Load() override {
        told.push_back("load " + name());
        if (atLoad) atLoad();
    }
    void Form_Activate() override { told.push_back("activate " + name()); }
    void Form_Unload() override {
        told.push_back("unload " + name());
        if (atUnload) atUnload();
    }

    Strings& told;
    std::function<void()> atLoad;
    std::function<void()> atUnload;
};

class DesktopForms : public testing::Test {
protected:
    forms_double::WindowlessDesktop desktop;
    Strings told;
    Told main{desktop, "UserformObj", told};
    Told dialog{desktop, "Dialog", told};
    Told progress{desktop, "Progress", told};
};

TEST_F(DesktopForms, LoadOnceHoweverOftenTheyAreShown) {
    desktop.load(main);
    desktop.show(main, ShowMode::Modeless);
    desktop.show(main, ShowMode::Modeless);
    EXPECT_EQ(told, (Strings{"load UserformObj", "activate UserformObj", "activate UserformObj"}));
}

TEST_F(DesktopForms, AModalFormReturnsWhenItHasBeenUnloaded) {
    desktop.answer("Dialog", [&](forms::Form& form) {
        EXPECT_TRUE(desktop.isLoaded(form));
        forms_double::close(form);
    });
    desktop.show(dialog, ShowMode::Modal);
    EXPECT_EQ(told, (Strings{"load Dialog", "activate Dialog", "unload Dialog"}));
    progress.atLoad = [&] { desktop.unload(progress); };
    desktop.show(progress, ShowMode::Modal);
    EXPECT_EQ(desktop.record.back(), "unload Progress");
    EXPECT_FALSE(desktop.isLoaded(progress)) << "unloaded while it loaded, it is never shown";
}

TEST_F(DesktopForms, UnloadEachOnceWhenOneOfThemUnloadsAll) {
    for (Told* form : {&main, &dialog, &progress}) desktop.load(*form);
    main.atUnload = [&] { desktop.unloadAll(); };
    told.clear();
    desktop.unload(main);
    EXPECT_EQ(told, (Strings{"unload UserformObj", "unload Progress", "unload Dialog"}));
}

TEST_F(DesktopForms, UnloadingStopsAtOneThatComesBack) {
    for (Told* form : {&main, &dialog}) desktop.load(*form);
    dialog.atUnload = [&] { desktop.load(dialog); };
    desktop.unloadAll();
    EXPECT_TRUE(desktop.isLoaded(main));
    dialog.atUnload = nullptr;
}

}  // namespace

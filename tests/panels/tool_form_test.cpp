#include <gtest/gtest.h>

#include "forms_double/user.h"
#include "forms_double/windowless_desktop.h"
#include "panels/show_tool_form.h"

namespace {

struct Named : forms::Form {
    Named(forms::Desktop& desktop, const char* name) : Form(desktop, name, 100, 100) {
        topmost = true;
    }
};

class ToolForms : public testing::Test {
protected:
    forms_double::WindowlessDesktop desktop;
    Named main{desktop, "UserformObj"};
    Named dialog{desktop, "Dialog"};
    Named tool{desktop, "LayoutForm"};
};

TEST_F(ToolForms, StandAboveTheMainFormAndTheDialogsWhileTheyAreUp) {
    desktop.load(main);
    desktop.load(dialog);
    desktop.answer("LayoutForm", [&](forms::Form& form) {
        EXPECT_FALSE(main.topmost || dialog.topmost);
        EXPECT_TRUE(form.topmost);
        forms_double::close(form);
    });
    panels::ShowToolForm(tool);
    EXPECT_TRUE(main.topmost);
    EXPECT_FALSE(dialog.topmost);
}

TEST_F(ToolForms, LeaveAMainFormAloneThatClosedMeanwhile) {
    desktop.load(main);
    desktop.answer("Dialog", [&](forms::Form&) { desktop.unloadAll(); });
    panels::ShowOptionsDialog(dialog);
    EXPECT_FALSE(main.topmost);
    EXPECT_FALSE(panels::DropTopmost(desktop));
}

TEST_F(ToolForms, AreUnloadedByNameOrAllTogether) {
    const session::FormHooks hooks = panels::formHooks(desktop);
    for (Named* form : {&main, &dialog, &tool}) desktop.load(*form);
    hooks.UnloadForm("dialog");
    hooks.UnloadForm("DialogWord");
    EXPECT_FALSE(desktop.isLoaded(dialog));
    hooks.UnloadAllForms();
    EXPECT_TRUE(desktop.loadedForms().empty());
}

}  // namespace

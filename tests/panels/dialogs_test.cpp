#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "forms_double/user.h"
#include "forms_double/windowless_desktop.h"
#include "panels/about_form.h"
#include "panels/dialogs.h"
#include "session_doubles/test_session.h"

namespace {

struct Named : forms::Form {
    Named(forms::Desktop& desktop, const char* name, std::vector<std::string>& theUnloaded)
        : Form(desktop, name, 100, 100),
          unloaded(theUnloaded) {
        topmost = true;
    }
    void Form_Unload() override { unloaded.push_back(name()); }

    std::vector<std::string>& unloaded;
};

class ToolForms : public testing::Test {
protected:
    forms_double::WindowlessDesktop desktop;
    std::vector<std::string> unloaded;
    Named main{desktop, "UserformObj", unloaded};
    Named dialog{desktop, "Dialog", unloaded};
    Named tool{desktop, "LayoutForm", unloaded};
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
    EXPECT_TRUE(main.topmost && dialog.topmost);
    main.topmost = false;
    desktop.answer("LayoutForm", [&](forms::Form& form) { forms_double::close(form); });
    panels::ShowToolForm(tool);
    EXPECT_FALSE(main.topmost) << "it would cover the progress of a batch";
}

TEST_F(ToolForms, LeaveAMainFormAloneThatClosedMeanwhile) {
    desktop.load(main);
    desktop.answer("Dialog", [&](forms::Form&) { desktop.unloadAll(); });
    panels::ShowToolForm(dialog);
    EXPECT_FALSE(main.topmost);
}

TEST_F(ToolForms, AnExportEndsWithTheMainFormUnloadedAheadOfTheOthers) {
    session_doubles::TestSession test;
    test.suite.excel().addWorkbook("Book1.xlsx").sheet("Sales");
    test.attach();
    for (Named* form : {&main, &tool, &dialog}) desktop.load(*form);
    panels::RunExport(test.session, dialog, 3, [&] {
        EXPECT_FALSE(desktop.isLoaded(dialog));
        EXPECT_FALSE(main.takesInput);
        EXPECT_EQ(test.progress.calls, std::vector<std::string>{"item 0 of 3"});
    });
    EXPECT_EQ(test.progress.calls.back(), "unload");
    EXPECT_EQ(unloaded, (std::vector<std::string>{"Dialog", "UserformObj", "LayoutForm"}));
    EXPECT_FALSE(test.session.ExcelApp);
    EXPECT_TRUE(test.session.ActiveBook) << "the list is saved there";
}

TEST(About, TellsTheVersionAndLeadsToTheWebPagesUntilItIsClosed) {
    session_doubles::TestSession test;
    forms_double::WindowlessDesktop desktop;
    desktop.answer("MurvaneAbout", [&](forms::Form& form) {
        EXPECT_EQ(form.find("lblVersion")->caption, "Version 1.2.3");
        for (const char* button : {"btnOverview", "btnFaq", "btnContact"}) {
            forms_double::press(form, button);
        }
        EXPECT_TRUE(desktop.isLoaded(form));
        forms_double::pressEscape(form);
    });
    panels::ShowAboutForm(test.session, desktop, "1.2.3");
    EXPECT_EQ(test.host.links, (std::vector<std::string>{"file:///program/help/overview.html",
                                                         "file:///program/help/faq.html",
                                                         "file:///program/help/contact.html"}));
    EXPECT_TRUE(desktop.loadedForms().empty());
}

}  // namespace

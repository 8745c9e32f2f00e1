#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "session/closing.h"
#include "session_doubles/test_session.h"

namespace {

using session_doubles::TestSession;
using Words = std::vector<std::string>;

class Closing : public testing::Test {
protected:
    TestSession test;
    Words unloaded;
    session::FormHooks forms;

    Closing() {
        test.suite.excel().addWorkbook("Book1.xlsx").sheet("Sales");
        test.suite.powerPoint().addPresentation("Deck.pptx");
        test.attach();
        test.session.SessionPresentation =
            test.session.PowerPointApp.get("ActivePresentation").toObject();
        test.session.MainFormOpen = true;
        test.session.WordDialogOpen = true;
        forms.UnloadForm = [this](std::string_view form) {
            unloaded.push_back(std::string(form) +
                               (test.session.ClosingMainForm ? " (closing)" : ""));
        };
        forms.UnloadAllForms = [this] { unloaded.emplace_back("all"); };
    }
};

TEST_F(Closing, OfASessionLetsGoOfEverythingAndEndsNoApplication) {
    session::CloseSession(test.session, forms);
    EXPECT_FALSE(test.session.MainFormOpen || test.session.WordDialogOpen);
    EXPECT_FALSE(test.session.ActiveBook || test.session.SessionPresentation ||
                 test.session.ExcelApp || test.session.PowerPointApp);
    EXPECT_EQ(unloaded, Words{"all"});
    EXPECT_EQ(test.suite.log().count("Quit") + test.suite.log().count("Close"), 0U);
}

TEST_F(Closing, AfterAnExportUnloadsTheFormsInOrderAndKeepsTheWorkbookForSaving) {
    session::CloseAllAndEnd(test.session, forms);
    EXPECT_EQ(test.progress.calls, Words{"unload"});
    EXPECT_EQ(unloaded,
              (Words{"UserformObj (closing)", "Dialog", "DialogWord", "DialogPDF", "DialogHTML",
                     "DialogImageFiles", "MurvaneNotice", "HepPopup", "all"}));
    EXPECT_FALSE(test.session.MainFormOpen);
    EXPECT_TRUE(test.session.ActiveBook);
    EXPECT_FALSE(test.session.ExcelApp || test.session.PowerPointApp);
}

TEST_F(Closing, GoesOnWhereAFormFailsToUnload) {
    forms.UnloadForm = [](std::string_view) { throw office::Failure(5, "Form", "no"); };
    session::CloseAllAndEnd(test.session, forms);
    EXPECT_FALSE(test.session.ExcelApp || test.session.ClosingMainForm);
    EXPECT_EQ(unloaded, Words{"all"});
}

}  // namespace

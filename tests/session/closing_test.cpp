#include <gtest/gtest.h>

#include "session/closing.h"
#include "session_doubles/test_session.h"

namespace {

TEST(Closing, LetsGoOfEverythingAndEndsNoApplication) {
    session_doubles::TestSession test;
    test.suite.excel().addWorkbook("Book1.xlsx").sheet("Sales");
    test.suite.powerPoint().addPresentation("Deck.pptx");
    test.attach();
    test.session.SessionPresentation =
        test.session.PowerPointApp.get("ActivePresentation").toObject();
    test.session.MainFormOpen = true;
    int unloaded = 0;
    session::CloseSession(test.session, [&] {
        ++unloaded;
        throw office::Failure(5, "Form", "no");
    });
    EXPECT_FALSE(test.session.MainFormOpen);
    EXPECT_FALSE(test.session.ActiveBook || test.session.SessionPresentation ||
                 test.session.ExcelApp || test.session.PowerPointApp);
    EXPECT_EQ(unloaded, 1);
    EXPECT_EQ(test.suite.log().count("Quit") + test.suite.log().count("Close"), 0U);
}

}  // namespace

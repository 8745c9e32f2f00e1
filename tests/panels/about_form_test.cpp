#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "forms_double/user.h"
#include "forms_double/windowless_desktop.h"
#include "panels/about_form.h"
#include "session/web_pages.h"
#include "session_doubles/test_session.h"

namespace {

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
    EXPECT_EQ(test.host.links, (std::vector<std::string>{std::string(session::address::docOverview),
                                                         std::string(session::address::docFaq),
                                                         std::string(session::address::contact)}));
    EXPECT_TRUE(desktop.loadedForms().empty());
}

}  // namespace

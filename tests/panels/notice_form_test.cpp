#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "forms_double/user.h"
#include "forms_double/windowless_desktop.h"
#include "panels/notice_form.h"
#include "panels/notices.h"
#include "session_doubles/scripted_host.h"

namespace {

using forms::Place;
using forms_double::press;
using forms_double::the;
using session::Notice;
using Strings = std::vector<std::string>;
using namespace std::chrono_literals;

struct NoticeTest : testing::Test {
    NoticeTest() { desktop.page.files = &host.written; }

    /// Shows the notice and lets `user` answer it.
    int show(const Notice& notice, forms_double::WindowlessDesktop::Answer user) {
        desktop.answer("MurvaneNotice", std::move(user));
        return panel.show(notice);
    }
    [[nodiscard]] static Notice notice(int buttons = 0) {
        Notice made;
        made.message = "Two charts\r\rwere exported.";
        made.title = "Murvane <now>";
        made.kind = "success";
        made.buttons = buttons;
        return made;
    }

    forms_double::WindowlessDesktop desktop;
    session_doubles::ScriptedHost host;
    panels::NoticePanel panel{desktop, host};
};

const forms::Place& placeOf(const forms::Form& form, const char* name) {
    return forms_double::control(form, name).place;
}

TEST_F(NoticeTest, AnswersByItsButtonsOrAsClosed) {
    struct Case {
        int buttons;
        const char* captions;  ///< of the buttons shown
        int first, second, closed;
    };
    for (const Case& it :
         {Case{0, "OK", 1, 0, 1}, Case{1, "OKCancel", 1, 2, 2}, Case{33, "OKCancel", 1, 2, 2},
          Case{4, "YesNo", 6, 7, 1}, Case{5, "YesNo", 6, 7, 2}, Case{32, "OK", 1, 0, 1}}) {
        std::string captions;
        const auto answerWith = [&](const std::function<void(forms::Form&)>& act) {
            return show(notice(it.buttons), [&](forms::Form& form) {
                captions.clear();
                for (const char* name : {"btnOK", "btnCancel"}) {
                    const auto& button = forms_double::control(form, name);
                    if (button.visible) captions += button.caption;
                }
                act(form);
            });
        };
        EXPECT_EQ(answerWith([](forms::Form& form) { press(form, "btnOK"); }), it.first);
        EXPECT_EQ(captions, it.captions) << it.buttons;
        EXPECT_EQ(answerWith(forms_double::close), it.closed) << it.buttons;
        EXPECT_EQ(answerWith(forms_double::pressEscape), it.closed) << it.buttons;
        if (it.second == 0) continue;
        EXPECT_EQ(answerWith([](forms::Form& form) { press(form, "btnCancel"); }), it.second);
    }
}

TEST_F(NoticeTest, ComesUpFirstAndShowsItsPageAfterwards) {
    show(notice(), [&](forms::Form& form) {
        EXPECT_TRUE(form.topmost);
        EXPECT_EQ(form.focus, form.find("btnOK"));
        EXPECT_EQ(form.find("TitelBar1")->caption, " Murvane <now>");
        EXPECT_EQ(form.caption, "Murvane <now>");
        EXPECT_EQ(form.focus->accessibleDescription, "Two charts were exported.");
        desktop.advance(49ms);
        EXPECT_TRUE(desktop.browser(form)->navigations.empty());
        desktop.advance(2ms);
        const std::string& page = desktop.browser(form)->page();
        EXPECT_NE(page.find("<h1>Murvane &lt;now&gt;</h1>"), std::string::npos);
        EXPECT_NE(page.find("<p>Two charts</p><p>were exported.</p>"), std::string::npos);
        EXPECT_TRUE(page.ends_with("</html>\r\n"));
        EXPECT_EQ(desktop.browser(form)->styles.at("background-color"), "#111827");
        desktop.advance(1s);
        EXPECT_EQ(desktop.browser(form)->navigations,
                  Strings{"file:///temporary/MurvaneNotice.html"});
        press(form, "btnOK");
    });
}

TEST_F(NoticeTest, FitsItsBodyToThePageWithinLimits) {
    struct Case {
        int contentPx;
        forms::Twips screenHeight;
        forms::Twips body;
        std::string overflow;
    };
    const forms::Twips tall = 15360;
    const std::vector<Case> cases = {
        {40, tall, 1800, "hidden"},                    // no lower than this
        {200, tall, 3720, "hidden"},                   // (200 + 24) * 15 + 360
        {512, tall, 8400, "hidden"},                   // (512 + 24) * 15 + 360, just the most
        {513, tall, 8400, "auto"},                     // scrolls
        {513, 9000, 9000 - 660 - 1140 - 600, "auto"},  // the form itself meets the screen's edge
        {200, 3000, 3000 - 660 - 1140 - 600, "auto"},
    };
    for (const Case& it : cases) {
        desktop.size.height = it.screenHeight;
        desktop.page.contentHeights = {{"noticeRoot", it.contentPx}};
        show(notice(), [&](forms::Form& form) {
            desktop.advance(200ms);
            EXPECT_EQ(placeOf(form, "wbNotice"), (Place{180, 660, 8040, it.body})) << it.contentPx;
            EXPECT_EQ(form.place.height, 660 + it.body + 1140) << it.contentPx;
            EXPECT_EQ(desktop.browser(form)->styles.at("overflow"), it.overflow) << it.contentPx;
            EXPECT_EQ(form.place.left, (desktop.size.width - 8400) / 2);
            EXPECT_EQ(form.place.top, (it.screenHeight - form.place.height) / 2);
            press(form, "btnOK");
        });
    }
}

TEST_F(NoticeTest, StopsWaitingForItsPageAfterAboutASecond) {
    desktop.page.contentHeights = {{"noticeRoot", 39}};
    for (const bool completes : {false, true}) {
        desktop.page.completes = completes;
        show(notice(), [&](forms::Form& form) {
            desktop.advance(51ms + 12 * 80ms);
            EXPECT_TRUE(form.timers().at(1)->enabled);
            desktop.advance(80ms);
            EXPECT_FALSE(form.timers().at(1)->enabled);
            press(form, "btnOK");
        });
    }
}

TEST_F(NoticeTest, WorksWithoutAPage) {
    desktop.hasBrowsers = false;
    const auto refuse = [&](forms::Form& form) {
        desktop.advance(2s);
        press(form, "btnCancel");
    };
    EXPECT_EQ(show(notice(33), refuse), 2);
}

TEST_F(NoticeTest, StandsAboveTheMainFormOrFallsBackOnTheSystemsBox) {
    forms::Form main(desktop, "UserformObj", 100, 100);
    desktop.show(main, forms::ShowMode::Modeless);
    main.topmost = true;
    show(notice(), [&](forms::Form& form) {
        EXPECT_FALSE(main.topmost);
        press(form, "btnOK");
    });
    EXPECT_TRUE(main.topmost);
    desktop.opensWindows = false;
    EXPECT_EQ(panel.show(notice(33)), 2);
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages.front().text, "Murvane could not open the notice panel.");
    EXPECT_TRUE(main.topmost);
    EXPECT_EQ(desktop.loadedForms().size(), 1U);
}

TEST_F(NoticeTest, AnotherNoticeTakesThePlaceOfTheOneThatIsUp) {
    const int outer = show(notice(33), [&](forms::Form& form) {
        const int inner = show(notice(4), [&](forms::Form& second) {
            EXPECT_FALSE(desktop.isLoaded(form));
            press(second, "btnOK");
        });
        EXPECT_EQ(inner, 6);
    });
    EXPECT_EQ(outer, 2);
}

}  // namespace

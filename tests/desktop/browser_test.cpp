#include <QtGui/QImage>
#include <QtTest/QTest>
#include <QtWebEngineCore/QWebEngineScript>
#include <QtWebEngineWidgets/QWebEngineView>
#include <gtest/gtest.h>

#include "desktop/browser_view.h"
#include "desktop/fixture.h"
#include "desktop/page_file.h"

namespace {

using namespace std::chrono_literals;

/// The upper half of the strip is a link.
std::string linkTo(const std::string& url) {
    return "<a href='" + url + "' style='display:block;height:40px'>Go on</a>";
}

class Browser : public OnTheDesktop {
protected:
    void open(const std::string& url) {
        form.wbStatus.navigate(url);
        ASSERT_TRUE(input::waitUntil(desk, [this] { return page().isComplete(); }));
    }
    forms::BrowserView& page() { return *form.wbStatus.view; }
    QWebEngineView& engine() { return *widgetOf<desktop::BrowserView>(form.wbStatus).engineView(); }
    bool waitFor(const std::string& event, long howOften = 1,
                 std::chrono::milliseconds patience = 10s) {
        return input::waitUntil(
            desk, [&] { return times(event) >= howOften; }, patience);
    }
    void clickPage() {
        input::waitUntil(
            desk, [] { return false; }, 100ms);
        QTest::mouseClick(engine().focusProxy(), Qt::LeftButton, {}, {60, 20});
    }
    /// Clicks the link until the event comes: a page takes no click before it has been painted,
    /// and does not say when that was.
    bool clickLinkFor(const std::string& event) {
        const long before = times(event);
        for (int i = 0; i < 5; ++i) {
            clickPage();
            if (waitFor(event, before + 1, 2s)) return true;
        }
        return false;
    }
};

TEST_F(Browser, AClickedLinkReachesTheFormInItsOwnCaseAndThePageStays) {
    const PageFile file(linkTo("murvane://toggle/SlideTitle") + "<input id='f' value='7'>");
    open(file.url());
    ASSERT_TRUE(clickLinkFor("murvane://toggle/SlideTitle"));
    EXPECT_EQ(page().fieldValue("f"), "7");
    EXPECT_TRUE(clickLinkFor("murvane://toggle/SlideTitle")) << "and it can be clicked again";
    EXPECT_EQ(times("document"), 1);
}

TEST_F(Browser, AFormMayShowANewPageFromWithinTheClick) {
    const PageFile before(linkTo("murvane://select/Format/Png"));
    const PageFile after("<input id='f' value='new'>");
    form.wbStatus.onBeforeNavigate = [&](std::string_view) {
        form.wbStatus.navigate(after.url());
        return true;
    };
    open(before.url());
    ASSERT_TRUE(clickLinkFor("document"));
    EXPECT_TRUE(input::waitUntil(desk, [this] { return page().fieldValue("f") == "new"; }));
}

TEST_F(Browser, ALinkThatTheFormLetsPassIsFollowed) {
    const PageFile target("<input id='f' value='there'>");
    const PageFile file(linkTo(target.url()));
    open(file.url());
    ASSERT_TRUE(clickLinkFor("document"));
    EXPECT_EQ(page().fieldValue("f"), "there");
}

TEST_F(Browser, TheKeyboardReachesALinkAndFollowsIt) {
    const PageFile file(linkTo("murvane://action/style"));
    open(file.url());
    form.focus = &form.wbStatus;
    input::waitUntil(
        desk, [] { return false; }, 100ms);
    QTest::keyClick(engine().focusProxy(), Qt::Key_Tab);
    input::waitUntil(
        desk, [] { return false; }, 100ms);
    QTest::keyClick(engine().focusProxy(), Qt::Key_Return);
    EXPECT_TRUE(waitFor("murvane://action/style"));
    EXPECT_EQ(times("Continue"), 0) << "the key was the link's, not the default button's";
}

TEST_F(Browser, EscapeReachesTheFormFromWithinAPageToo) {
    const PageFile file(linkTo("murvane://action/style"));
    open(file.url());
    ASSERT_TRUE(clickLinkFor("murvane://action/style"));
    QTest::keyClick(engine().focusProxy(), Qt::Key_Escape);
    EXPECT_TRUE(waitFor("Cancel", 1, 3s));
}

TEST_F(Browser, AClickedLinkLeavesTheKeyboardWhereItWas) {
    const PageFile file(linkTo("murvane://toggle/slideTitle"));
    open(file.url());
    form.focus = &form.ContinueOk;
    ASSERT_TRUE(clickLinkFor("murvane://toggle/slideTitle"));
    EXPECT_EQ(form.focus, &form.ContinueOk);
    input::key(desk, form, Qt::Key_Return);
    EXPECT_EQ(times("Continue"), 1);
}

TEST_F(Browser, ALinkFollowedByAKeyHasTheKeyboardOnThePageThatAnswersIt) {
    const PageFile file("<a href='murvane://one'>1</a><a href='murvane://two'>2</a>");
    open(file.url());
    engine().focusProxy()->setFocus(Qt::TabFocusReason);
    const auto press = [&](Qt::Key key) {
        QTest::keyClick(engine().focusProxy(), key);
        input::waitUntil(
            desk, [] { return false; }, 100ms);
    };
    engine().page()->runJavaScript(QStringLiteral("document.links[1].focus()"),
                                   QWebEngineScript::ApplicationWorld);
    input::waitUntil(
        desk, [] { return false; }, 200ms);
    press(Qt::Key_Return);
    ASSERT_TRUE(waitFor("murvane://two"));
    open(file.url());
    EXPECT_TRUE(input::waitUntil(desk, [&] {
        press(Qt::Key_Return);
        return times("murvane://two") > 1;
    }));
    EXPECT_EQ(times("murvane://one"), 0);
}

TEST_F(Browser, AMissingPageLeavesTheFormAliveAndTheNextOneComes) {
    form.wbStatus.navigate("file:///nowhere/at/all.html");
    input::waitUntil(
        desk, [] { return false; }, 800ms);
    EXPECT_FALSE(page().isComplete());
    EXPECT_EQ(page().fieldValue("f"), std::nullopt);
    EXPECT_EQ(page().contentHeight("noticeRoot"), 0);
    input::click(desk, form.ContinueOk);
    EXPECT_EQ(times("Continue"), 1);
    const PageFile file("<p>here</p>");
    open(file.url());
}

TEST_F(Browser, ADeadEngineProcessLeavesTheFormAliveAndTheNextPageComes) {
    const PageFile file("<input id='f' value='again'>");
    open(file.url());
    ASSERT_GT(engine().page()->renderProcessPid(), 0);
    form.wbStatus.navigate("chrome://crash");
    input::waitUntil(
        desk, [] { return false; }, 800ms);
    EXPECT_FALSE(page().isComplete());
    input::click(desk, form.ContinueOk);
    EXPECT_EQ(times("Continue"), 1);
    open(file.url());
    EXPECT_EQ(page().fieldValue("f"), "again");
}

TEST_F(Browser, FieldsAreReadByTheirIds) {
    const PageFile file("<input id='width' value='a\"b'><input id=\"it's\" value='ü'><p id='p'>x");
    open(file.url());
    EXPECT_EQ(page().fieldValue("width"), "a\"b");
    EXPECT_EQ(page().fieldValue("it's"), "ü");
    EXPECT_EQ(page().fieldValue("missing"), std::nullopt);
    EXPECT_EQ(page().fieldValue("p"), std::nullopt) << "an element without a value";
}

TEST_F(Browser, ATypedValueIsRead) {
    const PageFile file("<input id='f' value='' style='display:block;height:40px'>");
    open(file.url());
    EXPECT_TRUE(input::waitUntil(desk, [&] {
        clickPage();
        QTest::keyClick(engine().focusProxy(), Qt::Key_4);
        return page().fieldValue("f").value_or("").starts_with("4");
    }));
}

TEST_F(Browser, TheHeightOfAnElementOrOfThePageIsMeasured) {
    const PageFile file("<div id='noticeRoot' style='height:230px'></div><p style='height:70px'>");
    open(file.url());
    EXPECT_EQ(page().contentHeight("noticeRoot"), 230);
    EXPECT_GE(page().contentHeight("missing"), 300);
}

TEST_F(Browser, TheValuesOfCheckedBoxesComeInTheOrderOfThePage) {
    const PageFile file(
        "<input type=checkbox name=mvAccept value=a checked><input type=checkbox name=mvAccept "
        "value=b><input type=checkbox name=mvAccept value=c checked>");
    open(file.url());
    EXPECT_EQ(page().checkedValues("mvAccept"), "a,c");
    EXPECT_EQ(page().checkedValues("other"), "");
}

TEST_F(Browser, StylesAreSetByTheirScriptNamesInAnyCase) {
    const PageFile file("<div id='d'></div>");
    open(file.url());
    page().setStyle("HEIGHT", "432px");
    EXPECT_GE(page().contentHeight("none"), 432);
}

TEST_F(Browser, ThePagesOwnScriptsDoNotRun) {
    const PageFile file(
        "<input id='f' value='plain'><script>"
        "document.getElementById('f').value='script';</script>");
    open(file.url());
    EXPECT_EQ(page().fieldValue("f"), "plain");
}

TEST_F(Browser, NoTimerTicksWhileAPageIsBeingAsked) {
    const PageFile file("<input id='f' value='7'>");
    open(file.url());
    bool asking = false;
    bool interrupted = false;
    form.Timer1.interval = 1ms;
    form.Timer1.onTimer = [&] { interrupted = interrupted || asking; };
    form.Timer1.enabled = true;
    desk.letEventsRun();
    for (int i = 0; i < 50; ++i) {
        asking = true;
        EXPECT_EQ(page().fieldValue("f"), "7");
        asking = false;
    }
    EXPECT_FALSE(interrupted);
}

TEST_F(Browser, TheStripIsDarkFromTheFirstToTheLast) {
    const auto isBright = [&] {
        const QImage strip = desk.widgetOf(form.wbStatus)->grab().toImage();
        return strip.pixelColor(strip.rect().center()).lightness() > 60;
    };
    const PageFile file("<p>dark</p>");
    form.wbStatus.navigate(file.url());
    bool wasBright = false;
    EXPECT_TRUE(input::waitUntil(desk, [&] {
        wasBright = wasBright || isBright();
        return page().isComplete();
    }));
    EXPECT_FALSE(wasBright);
    EXPECT_FALSE(input::waitUntil(desk, isBright, 200ms));
    form.wbStatus.navigate("file:///nowhere/at/all.html");
    EXPECT_FALSE(input::waitUntil(desk, isBright, 500ms));
}

TEST_F(Browser, AScreenReaderHearsTheNameThatTheFormGivesThePageLater) {
    const PageFile file("<p>x</p>");
    open(file.url());
    form.wbStatus.accessibleName = "Export options";
    desk.letEventsRun();
    EXPECT_EQ(engine().accessibleName(), QStringLiteral("Export options"));
}

TEST_F(Browser, AFormMayBeUnloadedFromWithinALink) {
    const PageFile file(linkTo("murvane://action/close"));
    form.wbStatus.onBeforeNavigate = [&](std::string_view) {
        desk.unload(form);
        return true;
    };
    open(file.url());
    EXPECT_TRUE(clickLinkFor("unload"));
    EXPECT_EQ(form.wbStatus.view, nullptr);
}

TEST_F(Browser, AFormWithoutAPageStartsNoEngine) {
    input::waitUntil(
        desk, [] { return false; }, 150ms);
    EXPECT_EQ(widgetOf<desktop::BrowserView>(form.wbStatus).engineView(), nullptr);
}

}  // namespace

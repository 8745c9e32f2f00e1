#include <QtCore/QDir>
#include <QtCore/QPointer>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTemporaryFile>
#include <QtGui/QImage>
#include <QtTest/QTest>
#include <QtWebEngineCore/QWebEngineScript>
#include <QtWebEngineWidgets/QWebEngineView>

#include "desktop/browser_view.h"
#include "desktop/fixture.h"

namespace {

using namespace std::chrono_literals;

/// A page on the disk for as long as this lives.
class PageFile {
public:
    explicit PageFile(std::string_view body)
        : file_(QStringLiteral("/tmp/murvane-page-XXXXXX.html")) {
        if (!file_.open()) qFatal("no temporary file");
        const std::string page =
            "<!DOCTYPE html><html><head><meta charset='utf-8'></head>"
            "<body style='margin:0;background:#111827;color:white'>" +
            std::string(body) + "</body></html>\r\n";
        file_.write(page.data(), static_cast<qint64>(page.size()));
        file_.close();
    }

    [[nodiscard]] std::string url() const { return "file://" + file_.fileName().toStdString(); }

private:
    QTemporaryFile file_;
};

/// The upper half of the strip is a link.
std::string linkTo(const std::string& url) {
    return "<a href='" + url + "' style='display:block;height:40px'>Go on</a>";
}

class Browser : public OnTheDesktop {
protected:
    void open(const std::string& url) {
        form.wbStatus.navigate(url);
        ASSERT_TRUE(waitUntil([this] { return page().isComplete(); }));
    }
    forms::BrowserView& page() { return *form.wbStatus.view; }
    QWebEngineView& engine() { return *widgetOf<desktop::BrowserView>(form.wbStatus).engineView(); }
    bool waitFor(const std::string& event, long howOften = 1,
                 std::chrono::milliseconds patience = 10s) {
        return waitUntil([&] { return times(event) >= howOften; }, patience);
    }
    void clickPage() {
        letPass(100ms);
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
    EXPECT_TRUE(waitUntil([this] { return page().fieldValue("f") == "new"; }));
}

TEST_F(Browser, ALinkThatTheFormLetsPassIsFollowed) {
    const PageFile target("<input id='f' value='there'>");
    const PageFile file(linkTo(target.url()));
    open(file.url());
    ASSERT_TRUE(clickLinkFor("document"));
    EXPECT_EQ(page().fieldValue("f"), "there");
}

TEST_F(Browser, TheKeyboardReachesALinkAndFollowsItByEnterAndSpace) {
    const PageFile file(linkTo("murvane://one") + linkTo("murvane://two"));
    form.focus = &form.wbStatus;
    for (const auto& [key, link] :
         {std::pair(Qt::Key_Return, "murvane://one"), std::pair(Qt::Key_Space, "murvane://two")}) {
        open(file.url());
        letPass(100ms);
        QTest::keyClick(engine().focusProxy(), Qt::Key_Tab);
        letPass(100ms);
        QTest::keyClick(engine().focusProxy(), key);
        EXPECT_TRUE(waitFor(link, 1, 3s));
    }
    EXPECT_EQ(times("Continue"), 0) << "the key was the link's, not the default button's";
}

TEST_F(Browser, APageThatComesToTheFocusOfItsFormTakesItsKeys) {
    form.focus = &form.wbStatus;
    letPass(20ms);
    const PageFile file("<input id='f' autofocus>");
    open(file.url());
    letPass(100ms);
    type("7");
    EXPECT_TRUE(waitUntil([this] { return page().fieldValue("f") == "7"; }, 3s));
}

TEST_F(Browser, AClickedLinkLeavesTheKeyboardWhereItWas) {
    const PageFile file(linkTo("murvane://toggle/slideTitle"));
    open(file.url());
    form.focus = &form.ContinueOk;
    ASSERT_TRUE(clickLinkFor("murvane://toggle/slideTitle"));
    EXPECT_EQ(form.focus, &form.ContinueOk);
    key(Qt::Key_Return);
    EXPECT_EQ(times("Continue"), 1);
    QTest::keyClick(engine().focusProxy(), Qt::Key_Escape);
    EXPECT_TRUE(waitFor("Cancel", 1, 3s)) << "from within the page too";
}

TEST_F(Browser, ALinkFollowedByAKeyHasTheKeyboardOnThePageThatAnswersIt) {
    const PageFile file("<a href='murvane://one'>1</a><a href='murvane://two'>2</a>");
    open(file.url());
    engine().focusProxy()->setFocus(Qt::TabFocusReason);
    const auto press = [&](Qt::Key key) {
        QTest::keyClick(engine().focusProxy(), key);
        letPass(100ms);
    };
    engine().page()->runJavaScript(QStringLiteral("document.links[1].focus()"),
                                   QWebEngineScript::ApplicationWorld);
    letPass(200ms);
    press(Qt::Key_Return);
    ASSERT_TRUE(waitFor("murvane://two"));
    open(file.url());
    EXPECT_TRUE(waitUntil([&] {
        press(Qt::Key_Return);
        return times("murvane://two") > 1;
    }));
    EXPECT_EQ(times("murvane://one"), 0);
}

TEST_F(Browser, AMissingPageOrADeadEngineLeavesTheFormAliveAndTheNextPageComes) {
    const PageFile file("<input id='f' value='again'>");
    for (const char* lost : {"file:///nowhere/at/all.html", "chrome://crash"}) {
        const long before = times("Continue");
        form.wbStatus.navigate(lost);
        letPass(800ms);
        EXPECT_FALSE(page().isComplete());
        EXPECT_EQ(page().fieldValue("f"), std::nullopt);
        EXPECT_EQ(page().contentHeight("noticeRoot"), 0);
        click(form.ContinueOk);
        EXPECT_EQ(times("Continue"), before + 1);
        open(file.url());
        EXPECT_EQ(page().fieldValue("f"), "again");
    }
}

TEST_F(Browser, ATypedValueIsReadAndEnteredByTheDefaultButton) {
    const PageFile file("<input id='f' value='' style='display:block;height:40px'>");
    open(file.url());
    EXPECT_TRUE(waitUntil([&] {
        clickPage();
        QTest::keyClick(engine().focusProxy(), Qt::Key_4);
        return page().fieldValue("f").value_or("").starts_with("4");
    }));
    QTest::keyClick(engine().focusProxy(), Qt::Key_Return);
    EXPECT_TRUE(waitFor("Continue", 1, 3s)) << "the default button, as from a box of the form";
    bool isLeft = false;
    engine().page()->runJavaScript(QStringLiteral("document.activeElement.blur()"),
                                   QWebEngineScript::ApplicationWorld,
                                   [&](const QVariant&) { isLeft = true; });
    ASSERT_TRUE(waitUntil([&] { return isLeft; }));
    // The engine tells its own process of the loss later than it tells the page, and a key that
    // comes between the two finds nobody.
    EXPECT_TRUE(waitUntil([&] {
        QTest::keyClick(engine().focusProxy(), Qt::Key_Return);
        return waitFor("Continue", 2, 1s);
    })) << "also when nothing on the page has the keyboard";
}

TEST_F(Browser, APageAnswersAboutItselfAndItsOwnScriptsDoNotRun) {
    const PageFile file(
        "<div id='noticeRoot' style='height:230px'></div><input id='width' value='a\"b'>"
        "<input id=\"it's\" value='ü'><p id='p' style='height:70px'>x</p>"
        "<script>document.getElementById('width').value='script';</script>");
    open(file.url());
    EXPECT_EQ(page().fieldValue("width"), "a\"b");
    EXPECT_EQ(page().fieldValue("it's"), "ü");
    EXPECT_EQ(page().fieldValue("missing"), std::nullopt);
    EXPECT_EQ(page().fieldValue("p"), std::nullopt) << "an element without a value";
    EXPECT_EQ(page().contentHeight("noticeRoot"), 230);
    EXPECT_GE(page().contentHeight("missing"), 300);
    form.wbStatus.accessibleName = "Export options";
    desk.letEventsRun();
    EXPECT_EQ(engine().accessibleName(), QStringLiteral("Export options"));
    page().setStyle("HEIGHT", "932px");
    EXPECT_GE(page().contentHeight("missing"), 932) << "by the name in scripts, in any case";
}

TEST_F(Browser, TellsScreenReadersWhatIsChosenAndWhatAFieldIsFor) {
    const PageFile file(
        "<a class='opt-row checked'>&#10003; <span class='opt-label'>Titles</span></a>"
        "<div class='choice-group'><div class='choice-title'>Export as</div>"
        "<a class='choice-chip'>Png</a><a class='choice-chip selected'>Gif</a></div>"
        "<div class='field-row'><span class='field-label'>Width</span><input></div>");
    open(file.url());
    QString told;
    engine().page()->runJavaScript(
        "Array.from(document.querySelectorAll('[role],input')).map("
        "e=>['role','aria-label','aria-checked'].map(n=>e.getAttribute(n)).join(' ')).join(',')",
        QWebEngineScript::ApplicationWorld,
        [&](const QVariant& answer) { told = answer.toString(); });
    EXPECT_TRUE(waitUntil([&] { return !told.isEmpty(); }));
    EXPECT_EQ(told.toStdString(),
              "checkbox Titles true,radiogroup Export as ,radio  false,radio  true, Width ");
}

TEST_F(Browser, ShowsThePicturesAndStylesOfTheFolderThatTheFormNamesAndNoOthers) {
    const QTemporaryDir home;
    std::string body;
    for (const char* folder : {"open", "shut"}) {
        const QString path = home.filePath(QLatin1String(folder));
        ASSERT_TRUE(QDir().mkpath(path));
        ASSERT_TRUE(QImage(30, 40, QImage::Format_RGB32).save(path + QStringLiteral("/a.png")));
        QFile sheet(path + QStringLiteral("/s.css"));
        ASSERT_TRUE(sheet.open(QIODevice::WriteOnly));
        sheet.write(fmt::format("#{}-text{{height:70px}}", folder).c_str());
        body += fmt::format(
            "<link rel='stylesheet' href='{0}/s.css'><div id='{0}-text'></div>"
            "<img id='{0}' src='{0}/a.png' alt=''>",
            folder);
    }
    const std::string base = "<base href='file://" + home.path().toStdString() + "/'>";
    const PageFile file(base + body + "<img id='around' src='open/%2e%2e/shut/a.png' alt=''>");
    const auto heights = [&] {
        open(file.url());
        std::vector<int> all;
        for (const char* id : {"open", "open-text", "shut", "shut-text", "around"}) {
            all.push_back(page().contentHeight(id));
        }
        return all;
    };
    EXPECT_EQ(heights(), (std::vector<int>{0, 0, 0, 0, 0}));
    form.wbStatus.resourceFolder = home.filePath(QStringLiteral("open")).toStdString();
    EXPECT_EQ(heights(), (std::vector<int>{40, 70, 0, 0, 0}));
}

TEST_F(Browser, TheKeyForHelpReachesTheFormFromThePageAndFromAnyControl) {
    std::vector<const forms::Control*> asked;
    desk.onHelp = [&](const forms::Form& of) { asked.push_back(of.focus); };
    const PageFile file("<input id='f'>");
    open(file.url());
    form.focus = &form.wbStatus;
    letPass(100ms);
    QTest::keyClick(engine().focusProxy(), Qt::Key_F1);
    for (forms::Control* control :
         std::vector<forms::Control*>{&form.listCharts, &form.SlideTitle, &form.ContinueOk}) {
        form.focus = control;
        letPass(20ms);
        key(Qt::Key_F1);
    }
    EXPECT_EQ(asked, (std::vector<const forms::Control*>{&form.wbStatus, &form.listCharts,
                                                         &form.SlideTitle, &form.ContinueOk}));
    form.takesInput = false;
    key(Qt::Key_F1);
    EXPECT_EQ(asked.size(), 4U) << "while an export runs";
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
    letPass(150ms);
    EXPECT_EQ(widgetOf<desktop::BrowserView>(form.wbStatus).engineView(), nullptr)
        << "a form without a page starts no engine";
    const PageFile file("<p>dark</p>");
    form.wbStatus.navigate(file.url());
    bool wasBright = false;
    EXPECT_TRUE(waitUntil([&] {
        wasBright = wasBright || isBright();
        return page().isComplete();
    }));
    EXPECT_FALSE(wasBright);
    EXPECT_FALSE(waitUntil(isBright, 200ms));
    form.wbStatus.navigate("file:///nowhere/at/all.html");
    EXPECT_FALSE(waitUntil(isBright, 500ms));
}

TEST_F(Browser, AFormThatGoesWhileItsPageIsOnItsWayIsNotAskedAgain) {
    const PageFile file("<p>late</p>");
    QPointer<desktop::BrowserView> strip;
    {
        sample::SampleForm brief(desk);
        desk.show(brief, forms::ShowMode::Modeless);
        strip = &widgetOf<desktop::BrowserView>(brief.wbStatus);
        brief.wbStatus.navigate(file.url());
    }
    // Events alone: the desktop takes the window down only after them.
    QTest::qWait(100);
    ASSERT_NE(strip, nullptr);
    EXPECT_EQ(strip->engineView(), nullptr);
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

}  // namespace

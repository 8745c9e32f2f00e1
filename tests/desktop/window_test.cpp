#include <QtCore/QTimer>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtGui/QWindow>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

#include <ctime>
#include <stdexcept>

#include "desktop/fixture.h"

namespace {

using namespace std::chrono_literals;
using forms::ShowMode;

class Windows : public OnTheDesktop {
protected:
    [[nodiscard]] QWidget& window(const forms::Form& of) {
        desk.letEventsRun();
        return *desk.plateOf(of)->window();
    }
};

/// Answers a modal form once it is up.
template <class Answer>
void whenModal(Answer answer) {
    QTimer::singleShot(30, answer);
}

TEST_F(Windows, AModalFormReturnsWhenItIsUnloadedAndTheOthersTakeNoInputUntilThen) {
    sample::SampleForm dialog(desk);
    dialog.ContinueOk.onClick = [&] { desk.unload(dialog); };
    whenModal([&] {
        QTest::mouseClick(window(form).windowHandle(), Qt::LeftButton, {},
                          desk.widgetOf(form.ContinueOk)->mapTo(&window(form), QPoint(20, 10)));
        EXPECT_EQ(QGuiApplication::modalWindow(), window(dialog).windowHandle());
        QTest::mouseClick(desk.widgetOf(dialog.ContinueOk), Qt::LeftButton);
    });
    desk.show(dialog, ShowMode::Modal);
    EXPECT_EQ(dialog.happened, std::vector<std::string>{"unload"});
    EXPECT_EQ(desk.plateOf(dialog), nullptr);
    EXPECT_EQ(times("Continue"), 0);
    EXPECT_EQ(QGuiApplication::modalWindow(), nullptr);
}

TEST_F(Windows, AreClosedByTheProgramOneAfterTheOtherAsSoonAsTheyTakeInput) {
    sample::SampleForm progress(desk);
    desk.show(progress, ShowMode::Modeless);
    form.takesInput = false;
    desk.closeForms();
    for (int i = 0; i < 3; ++i) desk.letEventsRun();
    EXPECT_FALSE(desk.isLoaded(progress));
    EXPECT_TRUE(desk.isLoaded(form)) << "its export goes on";
    form.takesInput = true;
    desk.letEventsRun();
    EXPECT_FALSE(desk.isLoaded(form));
}

TEST_F(Windows, WhatAFormShowsWhenTheProgramClosesItIsClosedToo) {
    sample::SampleForm notice(desk);
    struct Asking : forms::Form {
        using Form::Form;
        void Form_Unload() override { desktop().show(*above, ShowMode::Modal); }
        forms::Form* above = nullptr;
    } asking(desk, "Asking", 3000, 3000);
    asking.above = &notice;
    desk.show(asking, ShowMode::Modeless);
    desk.closeForms();
    EXPECT_TRUE(waitUntil([&] { return desk.loadedForms().empty(); }));
    EXPECT_EQ(notice.happened, std::vector<std::string>{"unload"});
}

TEST_F(Windows, AFormHearsThatTheUserLeavesItAndComesBack) {
    ASSERT_TRUE(waitUntil([&] { return form.visits == "+"; }));
    sample::SampleForm other(desk);
    desk.show(other, ShowMode::Modeless);
    EXPECT_TRUE(waitUntil([&] { return form.visits == "+-"; })) << form.visits;
    window(form).activateWindow();
    EXPECT_TRUE(waitUntil([&] { return form.visits == "+-+"; })) << form.visits;
    EXPECT_EQ(other.visits, "+-");
}

TEST_F(Windows, AFormThatAModalOneShowsCanBeReached) {
    sample::SampleForm dialog(desk), progress(desk);
    const auto clickIn = [&](const sample::SampleForm& of) {
        QTest::mouseClick(window(of).windowHandle(), Qt::LeftButton, {},
                          desk.widgetOf(of.ContinueOk)->mapTo(&window(of), QPoint(20, 10)));
    };
    whenModal([&] {
        desk.show(progress, ShowMode::Modeless);
        clickIn(progress);
        clickIn(dialog);
        desk.unload(progress);
        clickIn(dialog);
        desk.unload(dialog);
    });
    desk.show(dialog, ShowMode::Modal);
    EXPECT_EQ(progress.happened, (std::vector<std::string>{"Continue", "unload"}));
    EXPECT_EQ(dialog.happened, (std::vector<std::string>{"Continue", "unload"}));
}

TEST_F(Windows, AFormThatTakesNoInputLetsClicksKeysAndItsClosingPass) {
    form.takesInput = false;
    click(form.ContinueOk);
    key(Qt::Key_Return);
    window(form).close();
    desk.letEventsRun();
    QWidget& box = *desk.widgetOf(form.SlideTitle);
    QContextMenuEvent menu(QContextMenuEvent::Mouse, {4, 4}, box.mapToGlobal(QPoint(4, 4)));
    QApplication::sendEvent(&box, &menu);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << "it pastes";
    QInputMethodEvent typed;
    typed.setCommitString("x");
    QApplication::sendEvent(&box, &typed);
    desk.letEventsRun();
    EXPECT_TRUE(form.happened.empty());
    EXPECT_TRUE(desk.isLoaded(form));
    form.takesInput = true;
    click(form.ContinueOk);
    EXPECT_EQ(times("Continue"), 1);
}

TEST_F(Windows, AQuestionThatIsClosedHasNoAnswer) {
    const auto askedAnd = [&](const std::function<void(QMessageBox&)>& close) {
        QTimer::singleShot(
            30, [&] { close(dynamic_cast<QMessageBox&>(*QApplication::activeModalWidget())); });
        return desk.ask("text", "title");
    };
    using Answer = std::optional<bool>;
    EXPECT_EQ(askedAnd([](auto& box) { box.button(QMessageBox::Yes)->click(); }), Answer(true));
    EXPECT_EQ(askedAnd([](auto& box) { box.button(QMessageBox::No)->click(); }), Answer(false));
    EXPECT_EQ(askedAnd([](auto& box) { QTest::keyClick(&box, Qt::Key_Escape); }), Answer());
    EXPECT_EQ(askedAnd([](auto& box) { box.close(); }), Answer());
    EXPECT_EQ(askedAnd([&](auto&) { desk.closeForms(); }), Answer());
}

TEST_F(Windows, ABoxGivesWayToTheEndOfTheProgram) {
    QTimer::singleShot(30, [&] { desk.closeForms(); });
    bool isStuck = false;
    QTimer::singleShot(5000, [&] {
        isStuck = true;
        if (QWidget* box = QApplication::activeModalWidget()) box->close();
    });
    desk.messageBox("text", "title");
    EXPECT_FALSE(isStuck);
    EXPECT_EQ(desk.ask("text", "title"), std::nullopt) << "and none comes up any more";
    EXPECT_FALSE(isStuck);
    desk.letEventsRun();
    EXPECT_FALSE(desk.isLoaded(form));
}

TEST_F(Windows, AFormThatIsShownOnceMoreLeavesTheKeyboardWhereItIs) {
    sample::SampleForm other(desk);
    desk.show(other, ShowMode::Modeless);
    ASSERT_TRUE(waitUntil([&] { return window(other).isActiveWindow(); }));
    desk.show(form, ShowMode::Modeless);
    letPass(50ms);
    EXPECT_TRUE(window(other).isActiveWindow());
}

TEST_F(Windows, AFailureOfAnEventComesOutWhereEventsAreLetRun) {
    form.Up.onClick = [] { throw std::runtime_error("lost"); };
    EXPECT_THROW(click(form.Up), std::runtime_error);
    click(form.ContinueOk);
    EXPECT_EQ(times("Continue"), 1) << "and the form goes on";
}

TEST_F(Windows, AFormMayOpenAnotherFromItsEventAndBeUnloadedBeneathIt) {
    sample::SampleForm dialog(desk);
    form.Up.onClick = [&] {
        desk.show(dialog, ShowMode::Modal);
        form.happened.emplace_back("back");
    };
    dialog.Up.onClick = [&] { desk.unloadAll(); };
    whenModal([&] { QTest::mouseClick(desk.widgetOf(dialog.Up), Qt::LeftButton); });
    click(form.Up);
    EXPECT_EQ(form.happened, (std::vector<std::string>{"unload", "back"}));
    EXPECT_TRUE(desk.loadedForms().empty());
}

TEST_F(Windows, AFormObjectThatGoesTakesItsWindowWithIt) {
    QPointer<QWidget> shown;
    {
        sample::SampleForm other(desk);
        desk.show(other, ShowMode::Modeless);
        shown = &window(other);
    }
    desk.letEventsRun();
    EXPECT_TRUE(shown.isNull());
}

TEST_F(Windows, TheTitleBarAndAltF4CloseTheForm) {
    for (const bool byKey : {false, true}) {
        sample::SampleForm other(desk);
        desk.show(other, ShowMode::Modeless);
        if (byKey) {
            keyTo(other, Qt::Key_F4, Qt::AltModifier);
        } else {
            QWidget& bar = widgetOf<QWidget>(other.TitelBar1);
            clickAt(*bar.childAt(bar.width() - 10, 10), {10, 10});
        }
        EXPECT_EQ(other.happened, std::vector<std::string>{"unload"}) << byKey;
    }
}

TEST_F(Windows, AFormComesUpWhereItIsPlacedAndFollowsItsWindow) {
    const forms::Screen screen = desk.screen();
    EXPECT_NEAR(form.place.left + form.place.width / 2, screen.width / 2, 15);
    sample::SampleForm other(desk);
    other.placesItself = true;
    other.place.left = 1500;
    other.place.top = 3000;
    desk.show(other, ShowMode::Modeless);
    EXPECT_EQ(desk.plateOf(other)->mapToGlobal(QPoint(0, 0)), QPoint(100, 200));
    form.place = {300, 450, 9000, 6000};
    desk.letEventsRun();
    EXPECT_EQ(desk.plateOf(form)->size(), QSize(600, 400));
    EXPECT_EQ(desk.plateOf(form)->mapToGlobal(QPoint(0, 0)), QPoint(20, 30));
    window(form).move(window(form).pos() + QPoint(10, 0));
    desk.letEventsRun();
    EXPECT_EQ(form.place.left, 450);
}

TEST_F(Windows, AModalFormIsAsTopmostAsTheFormBeneathIt) {
    sample::SampleForm dialog(desk);
    const WId before = window(form).winId();
    const auto isOnTop = [&](const forms::Form& of) {
        return window(of).windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint);
    };
    whenModal([&] {
        EXPECT_FALSE(isOnTop(dialog));
        for (const bool topmost : {true, false}) {
            form.topmost = topmost;
            EXPECT_EQ(isOnTop(form), topmost);
            EXPECT_EQ(isOnTop(dialog), topmost);
        }
        desk.unload(dialog);
    });
    desk.show(dialog, ShowMode::Modal);
    EXPECT_EQ(window(form).winId(), before) << "and no new window was made for it";
    EXPECT_TRUE(window(form).isVisible());
}

TEST_F(Windows, AFormThatMayBeEnlargedIsByItsCornerAndItsTitleBar) {
    form.resizable = true;
    form.place.left += 15;
    const auto sizeOf = [&] { return QSize(form.place.width, form.place.height) / 15; };
    const QSize natural = sizeOf();
    QWidget& corner = *window(form).findChild<QWidget*>(QStringLiteral("corner"));
    const auto dragCorner = [&](QPoint by) {
        const QPoint from = corner.rect().center();
        QTest::mousePress(&corner, Qt::LeftButton, {}, from);
        dragTo(corner, from + by);
        QTest::mouseRelease(&corner, Qt::LeftButton, {}, from);
        desk.letEventsRun();
    };
    dragCorner({0, 40});
    EXPECT_EQ(sizeOf(), natural + QSize(0, 40));
    EXPECT_EQ(times("resize"), 1);
    dragCorner({-500, -500});
    EXPECT_EQ(sizeOf(), natural) << "never smaller than it is made";

    const forms::Place before = form.place;
    QWidget& bar = widgetOf<QWidget>(form.TitelBar1);
    QTest::mouseDClick(&bar, Qt::LeftButton, {}, {200, 10});
    desk.letEventsRun();
    EXPECT_EQ(sizeOf(), QGuiApplication::primaryScreen()->availableGeometry().size());
    EXPECT_EQ(desk.plateOf(form)->size(), sizeOf());
    QTest::mouseDClick(&bar, Qt::LeftButton, {}, {200, 10});
    desk.letEventsRun();
    EXPECT_EQ(form.place, before);
    EXPECT_EQ(desk.plateOf(form)->size(), natural);
}

TEST_F(Windows, ATimerTicksWhileItIsEnabledAndItsFormLoadedIfNotShown) {
    sample::SampleForm hidden(desk);
    desk.load(hidden);
    int ticks = 0;
    int depth = 0;
    forms::Timer& timer = hidden.Timer1;
    timer.onTimer = [&] {
        EXPECT_EQ(++depth, 1) << "it lets events run and is not interrupted by itself";
        QTest::qWait(30);
        desk.letEventsRun();
        --depth;
        if (++ticks == 3) timer.enabled = false;
    };
    timer.enabled = true;
    EXPECT_TRUE(waitUntil([&] { return ticks == 3; }));
    EXPECT_EQ(desk.plateOf(hidden), nullptr);
    letPass(60ms);
    EXPECT_EQ(ticks, 3);
    timer.enabled = true;
    desk.letEventsRun();
    desk.unload(hidden);
    const int before = ticks;
    letPass(60ms);
    EXPECT_EQ(ticks, before);
}

TEST_F(Windows, WaitingForEventsUsesNoProcessorTime) {
    letPass(100ms);
    bool woken = false;
    QTimer::singleShot(600, [&] { woken = true; });
    const std::clock_t before = std::clock();
    while (!woken) desk.waitForEvents();
    const double usedMs = 1000.0 * static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC;
    EXPECT_LT(usedMs, 30);
}

TEST_F(Windows, TheSystemsMessageBoxWaitsForItsButton) {
    whenModal([] { QTest::keyClick(QGuiApplication::modalWindow(), Qt::Key_Return); });
    desk.messageBox("Murvane could not open the notice panel.", "Murvane");
    EXPECT_EQ(QGuiApplication::modalWindow(), nullptr);
}

/// Run at several scales of the screen.
using Scale = OnTheDesktop;

TEST_F(Scale, NoCaptionIsCut) {
    const double ratio = QGuiApplication::primaryScreen()->devicePixelRatio();
    for (const forms::Control* control : std::initializer_list<const forms::Control*>{
             &form.Check1, &form.NbCharts, &form.OptionPpt, &form.DestinationFile}) {
        QWidget& widget = widgetOf<QWidget>(*control);
        QWidget& plate = *desk.plateOf(form);
        const QImage picture =
            plate.grab(QRect(widget.mapTo(&plate, QPoint(0, 0)), widget.size())).toImage();
        EXPECT_NEAR(picture.width(), widget.width() * ratio, 1.0);
        // Nothing but the ground is painted along the edges where text without room would be cut.
        const int right = picture.width() - 1;
        const int bottom = picture.height() - 1;
        const int ground = picture.pixelColor(right, 0).lightness();
        const auto isInk = [&](int x, int y) {
            return std::abs(picture.pixelColor(x, y).lightness() - ground) > 40;
        };
        bool isCut = false;
        for (int y = 0; y <= bottom; ++y) isCut = isCut || isInk(right, y);
        for (int x = 0; x <= right; ++x) isCut = isCut || isInk(x, bottom);
        EXPECT_FALSE(isCut) << control->name() << " at " << ratio;
    }
}

}  // namespace

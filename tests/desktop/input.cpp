#include "desktop/input.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QTimer>
#include <QtTest/QTest>

namespace input {

namespace {

QWidget& widgetOf(desktop::QtDesktop& desktop, const forms::Control& control) {
    desktop.letEventsRun();
    return *desktop.widgetOf(control);
}

QWidget& keyboardOwner(desktop::QtDesktop& desktop, const forms::Form& form) {
    desktop.letEventsRun();
    QWidget* window = desktop.plateOf(form)->window();
    return window->focusWidget() == nullptr ? *window : *window->focusWidget();
}

}  // namespace

bool waitUntil(forms::Desktop& desktop, const std::function<bool()>& holds,
               std::chrono::milliseconds patience) {
    const QDeadlineTimer end(patience);
    while (!holds() && !end.hasExpired()) {
        // Wakes a desktop that nothing else would wake.
        QTimer::singleShot(20, [] {});
        desktop.waitForEvents();
    }
    return holds();
}

void click(desktop::QtDesktop& desktop, const forms::Control& control) {
    QWidget& widget = widgetOf(desktop, control);
    clickAt(desktop, widget, widget.rect().center());
}

void clickAt(desktop::QtDesktop& desktop, QWidget& widget, QPoint at) {
    QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, at);
    desktop.letEventsRun();
}

void doubleClick(desktop::QtDesktop& desktop, const forms::Control& control) {
    QWidget& widget = widgetOf(desktop, control);
    QTest::mouseDClick(&widget, Qt::LeftButton);
    QTest::mouseRelease(&widget, Qt::LeftButton);
    desktop.letEventsRun();
}

void key(desktop::QtDesktop& desktop, const forms::Form& form, Qt::Key which,
         Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(&keyboardOwner(desktop, form), which, modifiers);
    desktop.letEventsRun();
}

void type(desktop::QtDesktop& desktop, const forms::Form& form, const std::string& text) {
    QTest::keyClicks(&keyboardOwner(desktop, form), QString::fromStdString(text));
    desktop.letEventsRun();
}

}  // namespace input

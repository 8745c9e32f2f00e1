#pragma once

#include <QtWidgets/QWidget>

#include <chrono>
#include <functional>
#include <string>

#include "desktop/qt_desktop.h"

/// A user's hands.
namespace input {

/// Lets events run until the condition holds; false if it doesn't within the time.
bool waitUntil(forms::Desktop& desktop, const std::function<bool()>& holds,
               std::chrono::milliseconds patience = std::chrono::seconds{10});

void click(desktop::QtDesktop& desktop, const forms::Control& control);
void clickAt(desktop::QtDesktop& desktop, QWidget& widget, QPoint at);
/// The second half of it, which follows a click.
void doubleClick(desktop::QtDesktop& desktop, const forms::Control& control);
/// To the widget that has the keyboard.
void key(desktop::QtDesktop& desktop, const forms::Form& form, Qt::Key which,
         Qt::KeyboardModifiers modifiers = Qt::NoModifier);
void type(desktop::QtDesktop& desktop, const forms::Form& form, const std::string& text);

}  // namespace input

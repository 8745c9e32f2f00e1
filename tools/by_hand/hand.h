#pragma once

#include <nlohmann/json.hpp>

#include <memory>
#include <vector>

#include "desktop/qt_desktop.h"
#include "trap.h"

namespace by_hand {

/// Somebody at the screen: looks at the windows and moves the mouse while the program runs. Lives
/// in a thread of its own, as a person does; what it does reaches the program as events.
///
/// An order is an object with the key "do" and what the order needs:
///
///     forms                                 names of the open forms
///     control   form, control               what the control shows
///     focus     form                        the control that has the keyboard
///     rows      form, control               what a list shows
///     tab-order form                        where Tab leads, and what a screen reader says there
///     click, double-click   form, control   on its middle
///     click-row, check-row  form, control, row
///     click-column          form, control, column
///     key       form, key                   "Return", "Ctrl+A" ... to where the keyboard goes
///     type      form, text
///     follow    form, control, href         clicks the link with that address in a page
///     ask       form, control, script       what a script in a page results in
///     look      form, file                  writes a picture of the form, a PNG; with a control,
///                                           of that part of it
///     catch     form, file, control, at_least   writes it as soon as the form is up and the number
///                                           in that control's caption is as high: of forms that
///                                           are too brief to be asked for
///     caught                                the files that were written so
///     boxes                                 texts of the plain message boxes so far, each answered
class Hand {
public:
    explicit Hand(desktop::QtDesktop& desktop);

    /// Carries the order out and returns what it saw; null where there is nothing to see. What the
    /// program does in answer to a click or a key may go on after the return. Throws
    /// `std::runtime_error` for what cannot be done now.
    nlohmann::json carryOut(const nlohmann::json& order);

    /// The texts of the plain message boxes so far. For the thread of the windows.
    [[nodiscard]] const nlohmann::json& boxes() const { return boxes_; }

private:
    void setTrap(const nlohmann::json& order);
    nlohmann::json see(const nlohmann::json& order) const;
    void act(const nlohmann::json& order);
    void press(const nlohmann::json& order);
    void clickInList(const nlohmann::json& order);
    [[nodiscard]] nlohmann::json ask(const nlohmann::json& order, const std::string& script);
    void follow(const nlohmann::json& order);

    desktop::QtDesktop& desktop_;
    std::vector<std::unique_ptr<Trap>> traps_;
    nlohmann::json boxes_ = nlohmann::json::array();
};

}  // namespace by_hand

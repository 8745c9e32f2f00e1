#pragma once

#include <chrono>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/desktop.h"
#include "forms_double/scripted_browser.h"

namespace forms_double {

/// Forms without windows. Nothing happens but what a test lets happen: modal forms are answered by
/// its script, time passes by `advance`, pages load when events are let run.
///
///     WindowlessDesktop desktop;
///     desktop.answer("MurvaneNotice", [](forms::Form& form) { press(form, "btnCancel"); });
///
/// It must outlive its forms.
class WindowlessDesktop : public forms::Desktop {
public:
    struct Message {
        std::string text;
        std::string title;
    };
    using Answer = std::function<void(forms::Form&)>;

    /// "show Dialog modal", "show Progress modeless", "unload Dialog", in order.
    std::vector<std::string> record;
    std::vector<Message> messages;
    /// What the user answers to plain questions and chooses as a folder.
    bool saysYes = false;
    std::optional<std::string> chosenFolder;
    int pumps = 0;
    forms::Screen size{.width = 1280 * 15, .height = 1024 * 15};
    PageScript page;
    /// Browsers have no view, as on a machine whose browser is broken.
    bool hasBrowsers = true;
    /// Opening a window fails with an exception.
    bool opensWindows = true;
    /// Run at each letting of events.
    std::function<void()> onEvents;

    /// The next modal form must have this name; the answer has to get it unloaded. A modal form
    /// without an answer fails the test and is unloaded.
    void answer(std::string formName, Answer answer);
    /// Answers that no form has asked for.
    [[nodiscard]] std::size_t openAnswers() const { return answers_.size(); }

    /// Lets time pass, a millisecond at a time: pages load and timers tick.
    void advance(std::chrono::milliseconds duration);

    /// The browser behind the form's first browser control. Null while there is no window.
    [[nodiscard]] ScriptedBrowser* browser(const forms::Form& form) const;

    void letEventsRun() override;
    void waitForEvents() override;
    [[nodiscard]] forms::Screen screen() const override { return size; }
    void messageBox(std::string_view text, std::string_view title) override;
    [[nodiscard]] std::optional<bool> ask(std::string_view text, std::string_view title) override;
    [[nodiscard]] std::optional<std::string> chooseFolder(std::string_view title,
                                                          std::string_view start) override;

protected:
    void openWindow(forms::Form& form, forms::ShowMode mode) override;
    void runModal(forms::Form& form) override;
    void closeWindow(forms::Form& form) override;

private:
    void finishPages();
    void tickTimers();
    void tick(forms::Timer& timer);

    std::deque<std::pair<std::string, Answer>> answers_;
    /// The browsers of each form that has a window.
    std::map<const forms::Form*, std::vector<std::unique_ptr<ScriptedBrowser>>> windows_;
    std::map<const forms::Timer*, std::chrono::milliseconds> due_;
    std::chrono::milliseconds now_{0};
};

}  // namespace forms_double

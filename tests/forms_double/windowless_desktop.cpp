#include "forms_double/windowless_desktop.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <utility>

#include "forms/form.h"
#include "forms/web_browser.h"

namespace forms_double {

using std::chrono::milliseconds;

void WindowlessDesktop::answer(std::string formName, Answer answer) {
    answers_.emplace_back(std::move(formName), std::move(answer));
}

void WindowlessDesktop::advance(milliseconds duration) {
    finishPages();
    tickTimers();
    for (const milliseconds end = now_ + duration; now_ < end;) {
        ++now_;
        finishPages();
        tickTimers();
    }
}

ScriptedBrowser* WindowlessDesktop::browser(const forms::Form& form) const {
    const auto found = windows_.find(&form);
    if (found == windows_.end() || found->second.empty()) return nullptr;
    return found->second.front().get();
}

void WindowlessDesktop::letEventsRun() {
    ++pumps;
    finishPages();
    tickTimers();
    if (onEvents) onEvents();
}

void WindowlessDesktop::waitForEvents() {
    throw std::logic_error("the program waits for an event that never comes");
}

void WindowlessDesktop::messageBox(std::string_view text, std::string_view title) {
    messages.push_back({std::string(text), std::string(title)});
}

std::optional<bool> WindowlessDesktop::ask(std::string_view text, std::string_view title) {
    messageBox(text, title);
    return saysYes;
}

std::optional<std::string> WindowlessDesktop::chooseFolder(std::string_view, std::string_view) {
    return chosenFolder;
}

void WindowlessDesktop::openWindow(forms::Form& form, forms::ShowMode mode) {
    if (!opensWindows) throw std::runtime_error("no window can be opened");
    record.push_back("show " + form.name() +
                     (mode == forms::ShowMode::Modal ? " modal" : " modeless"));
    const auto [place, isNew] = windows_.try_emplace(&form);
    if (!isNew || !hasBrowsers) return;
    for (forms::Control* control : form.controls()) {
        auto* browser = dynamic_cast<forms::WebBrowser*>(control);
        if (browser == nullptr) continue;
        auto& views = place->second;
        views.push_back(std::make_unique<ScriptedBrowser>(*browser, page));
        browser->view = views.back().get();
        // What was asked for before there was a window.
        if (!browser->url().empty()) views.back()->navigate(browser->url());
    }
}

void WindowlessDesktop::runModal(forms::Form& form) {
    while (isLoaded(form)) {
        if (answers_.empty()) {
            ADD_FAILURE() << "nothing answers the modal form " << form.name();
            unload(form);
            return;
        }
        const auto [name, next] = std::move(answers_.front());
        answers_.pop_front();
        EXPECT_EQ(name, form.name()) << "another modal form was to be shown";
        next(form);
    }
}

void WindowlessDesktop::closeWindow(forms::Form& form) {
    record.push_back("unload " + form.name());
    if (windows_.erase(&form) == 0) return;
    for (forms::Control* control : form.controls()) {
        if (auto* browser = dynamic_cast<forms::WebBrowser*>(control)) browser->view = nullptr;
    }
}

void WindowlessDesktop::finishPages() {
    // By names that are looked up anew: a page that has loaded may close any form.
    const std::vector<forms::Form*> forms = loadedForms();
    for (const forms::Form* form : forms) {
        if (ScriptedBrowser* view = browser(*form)) view->finishLoading();
    }
}

void WindowlessDesktop::tickTimers() {
    const std::vector<forms::Form*> forms = loadedForms();
    for (const forms::Form* form : forms) {
        for (std::size_t i = 0; isLoaded(*form) && i < form->timers().size(); ++i) {
            tick(*form->timers()[i]);
        }
    }
}

void WindowlessDesktop::tick(forms::Timer& timer) {
    if (!timer.enabled) {
        due_.erase(&timer);
        return;
    }
    const auto [place, isNew] = due_.try_emplace(&timer, now_ + timer.interval);
    if (isNew || now_ < place->second) return;
    place->second = now_ + timer.interval;
    if (timer.onTimer) timer.onTimer();
}

}  // namespace forms_double

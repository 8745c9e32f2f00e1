#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/form.h"

namespace forms {

enum class ShowMode { Modeless, Modal };

/// The screen that the user works on.
struct Screen {
    Twips width = 0;
    Twips height = 0;
    /// Of its corner, as forms are placed: from that of the first screen. Negative on one that
    /// stands left of it or above.
    Twips left = 0;
    Twips top = 0;

    /// Where something lies in its middle, or as near as its corner lets it.
    [[nodiscard]] Twips middleAcross(Twips extent) const {
        return left + std::max((width - extent) / 2, 0);
    }
    [[nodiscard]] Twips middleDown(Twips extent) const {
        return top + std::max((height - extent) / 2, 0);
    }
};

/// The windows of the program, and the forms collection behind them. One implementation draws, one
/// for tests answers by script.
class Desktop {
public:
    Desktop() = default;
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;
    virtual ~Desktop() = default;

    /// Runs the form's `Form_Load`, unless it is loaded already. A form that unloads itself in
    /// there is not loaded afterwards.
    void load(Form& form);
    /// Loads the form if it isn't, and shows it. A modal one returns when the form has been
    /// unloaded, and other forms take no input meanwhile.
    void show(Form& form, ShowMode mode);
    /// Takes the form's window away and runs its `Form_Unload`. Nothing for a form that isn't
    /// loaded.
    void unload(Form& form);

    /// The forms collection, in the order of loading.
    [[nodiscard]] const std::vector<Form*>& loadedForms() const { return loaded_; }
    [[nodiscard]] bool isLoaded(const Form& form) const;
    /// Whether a loaded form has been shown too.
    [[nodiscard]] bool isShown(const Form& form) const;
    /// Null if no loaded form has the name; case does not count.
    [[nodiscard]] Form* findLoaded(std::string_view name) const;
    /// Unloads the loaded forms from the last to the first; stops at one that refuses.
    void unloadAll();

    /// Runs when the user asks for help by the key for it, in a form that takes input; the form's
    /// focus tells on what.
    std::function<void(Form& form)> onHelp;

    /// Lets the events that are waiting run, those of timers too, and draws what has changed.
    virtual void letEventsRun() = 0;
    /// Waits until there is an event, then lets it run: the loop of an idle form uses no processor.
    virtual void waitForEvents() = 0;
    [[nodiscard]] virtual Screen screen() const = 0;
    /// The platform's plain message box with an exclamation mark, above everything.
    virtual void messageBox(std::string_view text, std::string_view title) = 0;
    /// The same with Yes and No; true for Yes. Nothing if the box is closed without an answer, by
    /// the user or because the program is to end.
    [[nodiscard]] virtual std::optional<bool> ask(std::string_view text,
                                                  std::string_view title) = 0;
    /// The platform's dialog for a folder, beginning at `start`. A full path, or nothing if it is
    /// cancelled.
    [[nodiscard]] virtual std::optional<std::string> chooseFolder(std::string_view title,
                                                                  std::string_view start) = 0;
    /// The mouse pointer says that the program works, or what it said before. Calls nest.
    virtual void showWorking(bool /*works*/) {}

protected:
    friend class Form;

    virtual void openWindow(Form& form, ShowMode mode) = 0;
    /// Runs events until the form is no longer loaded.
    virtual void runModal(Form& form) = 0;
    virtual void closeWindow(Form& form) = 0;

private:
    /// A form object that goes takes its window with it, without an event.
    void forget(Form& form);

    std::vector<Form*> loaded_;
    std::vector<const Form*> shown_;
};

/// The pointer says that the program works as long as this lives.
class Working {
public:
    explicit Working(Desktop& desktop) : desktop_(desktop) { desktop_.showWorking(true); }
    Working(const Working&) = delete;
    Working& operator=(const Working&) = delete;
    ~Working() { desktop_.showWorking(false); }

private:
    Desktop& desktop_;
};

}  // namespace forms

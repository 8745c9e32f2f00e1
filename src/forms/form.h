#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "forms/control.h"
#include "forms/looks.h"
#include "forms/timer.h"

namespace forms {

class Desktop;

/// Names of forms and controls are compared without regard to case.
[[nodiscard]] bool sameFormName(std::string_view left, std::string_view right);

enum class WindowState { Normal, Minimised, Maximised };

/// A form: its controls by name, its timers, and its event procedures, which a concrete form
/// overrides. It is shown, hidden and unloaded through the desktop; the object itself belongs to
/// whoever made it and outlives its window.
class Form {
public:
    Form(Desktop& desktop, std::string name, Twips width, Twips height);
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;
    virtual ~Form();

    [[nodiscard]] const std::string& name() const { return name_; }
    [[nodiscard]] Desktop& desktop() const { return desktop_; }

    /// In the order of their making, those in frames too.
    [[nodiscard]] const std::vector<Control*>& controls() const { return controls_; }
    [[nodiscard]] const std::vector<Timer*>& timers() const { return timers_; }
    /// Null if there is none of that name; case does not count. The first of a control array.
    [[nodiscard]] Control* find(std::string_view name) const;

    /// Where the form stands on the screen; a form has no frame of the system, so all of it is its
    /// own: `ScaleWidth` is its width.
    Place place;
    std::string caption;
    Colour backColour = Colour::rgb(0xF0F0F0);
    WindowState windowState = WindowState::Normal;
    /// Above all windows of all programs.
    bool topmost = false;
    /// The place on the screen is the form's own choice; otherwise it comes up in the middle.
    bool placesItself = false;
    /// The Escape key closes the form as the cross of its title bar does, unless a button takes it.
    bool escapeCloses = false;
    /// False while work that the form has begun goes on and lets events run: clicks, keys and the
    /// window's closing pass the form by, and it looks as before.
    bool takesInput = true;
    /// The control that the keyboard goes to; null: the first in tab order.
    Control* focus = nullptr;
    /// The user may make the form larger than it is made, never smaller. The desktop then changes
    /// the size in `place` and runs `Form_Resize`.
    bool resizable = false;
    /// A soft edge around the form: its width in pixels (0: none) and its strongest opacity.
    int shadowDepthPx = 0;
    int shadowOpacity = 0;
    Colour shadowColour;

    virtual void Form_Load() {}
    virtual void Form_Activate() {}
    /// The user has come to the form's window, or has gone on to another one of any program.
    virtual void Form_Entered() {}
    virtual void Form_Left() {}
    virtual void Form_Unload() {}
    virtual void Form_Resize() {}
    /// The user asks for help. False if the form shows none of its own.
    virtual bool Form_Help() { return false; }

    /// The size that the form is made with.
    [[nodiscard]] Twips naturalWidth() const { return naturalWidth_; }
    [[nodiscard]] Twips naturalHeight() const { return naturalHeight_; }

private:
    friend class Control;
    friend class Timer;

    Desktop& desktop_;
    std::string name_;
    Twips naturalWidth_;
    Twips naturalHeight_;
    std::vector<Control*> controls_;
    std::vector<Timer*> timers_;
};

/// The form takes no input as long as this lives.
class InputOff {
public:
    explicit InputOff(Form& form) : form_(form), before_(form.takesInput) {
        form.takesInput = false;
    }
    InputOff(const InputOff&) = delete;
    InputOff& operator=(const InputOff&) = delete;
    ~InputOff() { form_.takesInput = before_; }

private:
    Form& form_;
    bool before_;
};

}  // namespace forms

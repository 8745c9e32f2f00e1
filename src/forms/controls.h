#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "forms/control.h"

/// The plain controls. A value that changes raises the event that the same change by a user raises,
/// whoever makes it: an option button that becomes chosen and a check box that flips are clicks, a
/// text that becomes another is a change.
namespace forms {

using Event = std::function<void()>;

enum class Alignment { Left, Right, Centre };

class Label : public Control {
public:
    Label(Form& form, std::string name, Place at, Frame* container = nullptr)
        : Control(form, ControlClass::Label, std::move(name), at, container) {}

    Alignment alignment = Alignment::Left;
};

class Frame : public Control {
public:
    Frame(Form& form, std::string name, Place at, Frame* container = nullptr)
        : Control(form, ControlClass::Frame, std::move(name), at, container) {}

    bool hasBorder = true;
};

class CommandButton : public Control {
public:
    CommandButton(Form& form, std::string name, Place at, Frame* container = nullptr)
        : Control(form, ControlClass::CommandButton, std::move(name), at, container) {}

    /// Presses the button; nothing happens while it is disabled.
    void press() const {
        if (enabled && onClick) onClick();
    }

    /// The Enter key presses it, wherever the focus is.
    bool isDefault = false;
    /// The Escape key presses it.
    bool isCancel = false;
    Event onClick;
};

class CheckBox : public Control {
public:
    enum class State { Unchecked = 0, Checked = 1, Grey = 2 };

    CheckBox(Form& form, std::string name, Place at, Frame* container = nullptr)
        : Control(form, ControlClass::CheckBox, std::move(name), at, container) {}

    [[nodiscard]] State value() const { return value_; }
    [[nodiscard]] bool isChecked() const { return value_ == State::Checked; }
    void setValue(State value);
    /// The state before any event, set while the form is laid out.
    void startWith(State value) { value_ = value; }

    Event onClick;

private:
    State value_ = State::Unchecked;
};

/// One of the option buttons of its container: choosing it takes the choice from the others.
class OptionButton : public Control {
public:
    OptionButton(Form& form, std::string name, Place at, Frame* container = nullptr)
        : Control(form, ControlClass::OptionButton, std::move(name), at, container) {}

    [[nodiscard]] bool value() const { return value_; }
    void setValue(bool value);
    void startWith(bool value) { value_ = value; }

    Event onClick;
    /// The option is chosen already.
    Event onClickAgain;

private:
    bool value_ = false;
};

class TextBox : public Control {
public:
    TextBox(Form& form, std::string name, Place at, Frame* container = nullptr)
        : Control(form, ControlClass::TextBox, std::move(name), at, container) {}

    [[nodiscard]] const std::string& text() const { return text_; }
    void setText(std::string text);
    void startWith(std::string text) { text_ = std::move(text); }

    Alignment alignment = Alignment::Left;
    bool hasBorder = true;
    bool readOnly = false;
    Event onChange;
    /// Enter or the Down key (1) or the Up key (-1), where the box is one of a column of boxes.
    std::function<void(int step)> onStep;

    /// Selects the whole text, so that what is typed next takes its place.
    void selectAll() { ++selections_; }
    /// How often it has been asked for.
    [[nodiscard]] int selections() const { return selections_; }

private:
    std::string text_;
    int selections_ = 0;
};

class Slider : public Control {
public:
    enum class Orientation { Horizontal, Vertical };

    Slider(Form& form, std::string name, Place at, Orientation theOrientation,
           Frame* container = nullptr)
        : Control(form, ControlClass::Slider, std::move(name), at, container),
          orientation(theOrientation) {}

    [[nodiscard]] std::int32_t value() const { return value_; }
    /// Kept within the ends.
    void setValue(std::int32_t value);

    Orientation orientation;
    std::int32_t minimum = 0;
    std::int32_t maximum = 100;
    std::int32_t smallChange = 1;
    std::int32_t largeChange = 10;
    std::int32_t tickFrequency = 10;
    Event onChange;

private:
    std::int32_t value_ = 0;
};

/// A picture as bytes of a file format that the desktop draws, or as the name of a drawing of its
/// own.
struct Picture {
    std::vector<std::uint8_t> bytes;
    /// "icon:chart", "icon:word", ...: drawn by the program.
    std::string drawing;
    [[nodiscard]] bool isEmpty() const { return bytes.empty() && drawing.empty(); }
    bool operator==(const Picture&) const = default;
};

class Image : public Control {
public:
    Image(Form& form, std::string name, Place at, Frame* container = nullptr)
        : Control(form, ControlClass::Image, std::move(name), at, container) {}

    /// A new picture; the count tells the desktop that it is another one.
    void setPicture(Picture picture) {
        picture_ = std::move(picture);
        ++version_;
    }
    [[nodiscard]] const Picture& picture() const { return picture_; }
    [[nodiscard]] int version() const { return version_; }

    bool stretch = false;
    Event onClick;
    Event onDblClick;

private:
    Picture picture_;
    int version_ = 0;
};

/// A drawn rectangle.
class Shape : public Control {
public:
    Shape(Form& form, std::string name, Place at, Frame* container = nullptr)
        : Control(form, ControlClass::Shape, std::move(name), at, container) {}

    bool rounded = false;
};

}  // namespace forms

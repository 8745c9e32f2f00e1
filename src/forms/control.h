#pragma once

#include <optional>
#include <string>

#include "forms/looks.h"

namespace forms {

class Form;
class Frame;

/// What a control is. Rules that go by the class of a control, such as a theme, read it here.
enum class ControlClass {
    Label,
    Frame,
    CommandButton,
    CheckBox,
    OptionButton,
    TextBox,
    ListView,
    Slider,
    Image,
    Shape,
    WebBrowser,
    ProgressBar,
    TitleBar,
};

enum class ZOrder { Front, Back };

/// One control of a form: a plain value that rules read and write and that a desktop draws. The
/// drawing follows by itself: whoever draws compares with what it drew last.
///
/// A control belongs to its form for life and says so at its construction; the order of
/// construction is the tab order.
class Control {
public:
    Control(Form& form, ControlClass controlClass, std::string name, Place place,
            Frame* container = nullptr);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    /// Leaves the form, so that a desktop never meets a control that has gone.
    virtual ~Control();

    [[nodiscard]] const std::string& name() const { return name_; }
    [[nodiscard]] ControlClass controlClass() const { return class_; }
    [[nodiscard]] Form& form() const { return form_; }
    /// The frame that the control stands in; null on the form itself. Its place is relative to it.
    [[nodiscard]] Frame* container() const { return container_; }

    /// Brings the control in front of all its siblings, or behind them.
    void setZOrder(ZOrder order);
    /// Higher is nearer to the front.
    [[nodiscard]] int layer() const { return layer_; }

    Place place;
    bool visible = true;
    bool enabled = true;
    std::string caption;
    std::string toolTip;
    /// What a screen reader calls the control; empty: its caption.
    std::string accessibleName;
    /// What it says behind that, such as the message that a button answers.
    std::string accessibleDescription;
    Font font;
    /// Nothing: the platform's own.
    std::optional<Colour> backColour;
    std::optional<Colour> foreColour;
    /// `BackStyle` 0: what lies below shows through.
    bool transparent = false;

private:
    Form& form_;
    ControlClass class_;
    std::string name_;
    Frame* container_;
    int layer_ = 0;
};

}  // namespace forms

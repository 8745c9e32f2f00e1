#include "forms/controls.h"

#include <algorithm>
#include <utility>

#include "forms/form.h"

namespace forms {

Control::Control(Form& form, ControlClass controlClass, std::string name, Place thePlace,
                 Frame* container)
    : place(thePlace),
      form_(form),
      class_(controlClass),
      name_(std::move(name)),
      container_(container) {
    form_.controls_.push_back(this);
}

Control::~Control() {
    std::erase(form_.controls_, this);
    if (form_.focus == this) form_.focus = nullptr;
}

void Control::setZOrder(ZOrder order) {
    for (const Control* other : form_.controls_) {
        layer_ = order == ZOrder::Front ? std::max(layer_, other->layer_ + 1)
                                        : std::min(layer_, other->layer_ - 1);
    }
}

void CheckBox::setValue(State value) {
    if (std::exchange(value_, value) != value && onClick) onClick();
}

void OptionButton::setValue(bool value) {
    if (std::exchange(value_, value) == value) {
        if (value && onClickAgain) onClickAgain();
        return;
    }
    if (!value) return;
    for (Control* other : form().controls()) {
        auto* option = dynamic_cast<OptionButton*>(other);
        if (option != nullptr && option != this && option->container() == container()) {
            option->value_ = false;
        }
    }
    if (onClick) onClick();
}

void TextBox::setText(std::string text) {
    if (text == text_) return;
    text_ = std::move(text);
    if (onChange) onChange();
}

void Slider::setValue(std::int32_t value) {
    const std::int32_t kept = std::clamp(value, minimum, maximum);
    if (std::exchange(value_, kept) != kept && onChange) onChange();
}

}  // namespace forms

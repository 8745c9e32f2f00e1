#include "forms/controls.h"

#include <algorithm>
#include <utility>

#include "forms/form.h"

namespace forms {

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

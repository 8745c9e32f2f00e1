#include "forms_double/user.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "forms/desktop.h"

namespace forms_double {

namespace {

bool isReachable(const forms::Control& control) {
    if (!control.visible || !control.enabled || !control.form().takesInput) return false;
    return control.container() == nullptr || isReachable(*control.container());
}

template <class ControlType>
ControlType* reachable(const forms::Form& form, std::string_view name, int index = 0) {
    auto& found = the<ControlType>(form, name, index);
    if (isReachable(found)) return &found;
    ADD_FAILURE() << "no user can reach " << name << " of " << form.name();
    return nullptr;
}

template <class Wanted>
const forms::CommandButton* findButton(const forms::Form& form, Wanted&& wanted) {
    for (const forms::Control* one : form.controls()) {
        const auto* button = dynamic_cast<const forms::CommandButton*>(one);
        if (button != nullptr && isReachable(*button) && wanted(*button)) return button;
    }
    return nullptr;
}

}  // namespace

forms::Control& control(const forms::Form& form, std::string_view name, int index) {
    for (forms::Control* one : form.controls()) {
        if (forms::sameFormName(one->name(), name) && index-- == 0) return *one;
    }
    throw std::out_of_range(form.name() + " has no control " + std::string(name));
}

void press(const forms::Form& form, std::string_view button) {
    if (const auto* found = reachable<forms::CommandButton>(form, button)) found->press();
}

void choose(const forms::Form& form, std::string_view option, int index) {
    if (auto* found = reachable<forms::OptionButton>(form, option, index)) found->setValue(true);
}

void close(forms::Form& form) {
    if (form.takesInput) form.desktop().unload(form);
}

void pressEnter(const forms::Form& form) {
    const auto* button = findButton(form, [](const auto& one) { return one.isDefault; });
    if (button != nullptr) button->press();
}

void pressEscape(forms::Form& form) {
    const auto* button = findButton(form, [](const auto& one) { return one.isCancel; });
    if (button != nullptr) {
        button->press();
    } else if (form.escapeCloses) {
        close(form);
    }
}

}  // namespace forms_double

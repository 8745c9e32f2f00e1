#pragma once

#include <string_view>

#include "forms/controls.h"
#include "forms/form.h"

/// What a user does with a form, and can do: a control that isn't there, isn't visible or isn't
/// enabled fails the test.
namespace forms_double {

/// The control of a name; of a control array the one at `index`.
[[nodiscard]] forms::Control& control(const forms::Form& form, std::string_view name,
                                      int index = 0);

template <class ControlType>
[[nodiscard]] ControlType& the(const forms::Form& form, std::string_view name, int index = 0) {
    return dynamic_cast<ControlType&>(control(form, name, index));
}

void press(const forms::Form& form, std::string_view button);
void choose(const forms::Form& form, std::string_view option, int index = 0);
/// The cross of the title bar.
void close(forms::Form& form);
void pressEnter(const forms::Form& form);
void pressEscape(forms::Form& form);

}  // namespace forms_double

#pragma once

#include <string_view>

#include "forms/controls.h"
#include "forms/form.h"

/// The looks of push buttons. Their grounds are light, since the caption of a push button stays in
/// the system's colour.
namespace furniture {

/// The button that leads on.
void StyleAccentButton(forms::CommandButton& button, std::string_view caption, double sizePt);
void StyleNeutralButton(forms::CommandButton& button, std::string_view caption, double sizePt);
/// All push buttons of a form, those in frames too, by their names.
void ThemeButtonsIn(forms::Form& form);

}  // namespace furniture

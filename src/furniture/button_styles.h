#pragma once

#include <string_view>

#include "forms/controls.h"

/// The looks of push buttons. Their grounds are light, since the caption of a push button stays in
/// the system's colour.
namespace furniture {

/// The button that leads on.
void StyleAccentButton(forms::CommandButton& button, std::string_view caption, double sizePt);
void StyleNeutralButton(forms::CommandButton& button, std::string_view caption, double sizePt);
/// Close, cancel and help.
void StyleQuietButton(forms::CommandButton& button, std::string_view caption, double sizePt);
/// The accent ground alone; caption and font stay.
void StyleFlatButton(forms::CommandButton& button);
/// A question mark.
void StyleHelpButton(forms::CommandButton& button);

enum class Arrow { Up, Down };
void StyleArrowButton(forms::CommandButton& button, Arrow arrow);

}  // namespace furniture

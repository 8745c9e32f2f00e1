#pragma once

#include <string_view>

#include "forms/form.h"
#include "forms/web_browser.h"

namespace furniture {

/// Gives a form the dark theme: forms are laid out in the stock look, and a walk over their
/// controls paints them by class and by name. Each form calls it at the end of its `Form_Load`.
void ApplyTheme(forms::Form& form);

/// Paints the document of a browser, so that no white shows behind its page; `colour` as style
/// sheets write it. Nothing happens without a document that is complete, and nothing tries again.
void ApplyBrowserBackground(forms::WebBrowser& browser, std::string_view colour);

}  // namespace furniture

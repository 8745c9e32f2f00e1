#pragma once

#include <string_view>

#include "forms/form.h"
#include "forms/list_view.h"
#include "forms/web_browser.h"

/// The dark theme: forms are laid out in the stock look, and a walk over their controls paints them
/// by class and by name. Each form calls `ApplyTheme` at the end of its `Form_Load`.
namespace furniture {

void ApplyTheme(forms::Form& form);

void PaintFormGround(forms::Form& form);
/// All controls but the buttons, those in frames too. The frame `SlideNb` keeps what is in it for
/// `ThemeSlidePanel`.
void ThemeControlsIn(forms::Form& form, const forms::Frame* container = nullptr);
void ThemeControl(forms::Control& control);
void ThemeTitleBars(forms::Form& form);
/// The frame `SlideNb` of the main form; nothing on a form without it.
void ThemeSlidePanel(forms::Form& form);
/// The main form's list, which is light in the dark form.
void ThemeMainList(forms::ListView& list);
/// All push buttons, those in frames too, by their names.
void ThemeButtonsIn(forms::Form& form);
/// Paints the document of a browser, so that no white shows behind its page; `colour` as style
/// sheets write it. Nothing happens without a document that is complete, and nothing tries again.
void ApplyBrowserBackground(forms::WebBrowser& browser, std::string_view colour);

}  // namespace furniture

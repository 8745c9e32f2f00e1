#pragma once

#include <array>

#include "forms/controls.h"
#include "forms/form.h"
#include "forms/web_browser.h"

/// Where the furniture of an options dialog stands: the browser strip, and below it the bar with
/// the button that leads on. All lengths are twips.
namespace panels {

/// The bar of a dialog. What it hasn't got is null.
struct ActionBar {
    forms::Label& bar;
    forms::CommandButton& button;
    forms::Label* border = nullptr;
    forms::Label* caption = nullptr;
    std::array<forms::CommandButton*, 2> extraButtons = {};
    forms::Label* footer = nullptr;
};

/// The whole placement with the theme, once per dialog, at the end of its `Form_Load`. The caption
/// of the bar takes no part in it.
void SetupActionPanel(forms::Form& form, forms::WebBrowser& browser, const ActionBar& parts);

/// Along the foot of the form: border, bar, button, and from the left what else there is.
void LayoutActionBar(const forms::Form& form, const ActionBar& parts);

/// Between `top` and the bar less a gap; `maximumHeight` 0 is none. Never lower than 1500, even
/// where it then covers the bar.
void LayoutActionBrowser(const forms::Form& form, forms::WebBrowser& browser,
                         const forms::Label& bar, forms::Twips top, forms::Twips gap,
                         forms::Twips maximumHeight);

void PlaceContinueButton(forms::CommandButton& button, const forms::Place& place);

/// The stacking after each render: the browser on top of everything.
void RestoreActionZOrder(forms::WebBrowser& browser, const ActionBar& parts);

}  // namespace panels

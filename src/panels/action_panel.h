#pragma once

#include <string>
#include <string_view>

#include "forms/controls.h"
#include "forms/form.h"
#include "forms/web_browser.h"
#include "panels/panel_page.h"
#include "session/host.h"

/// The strip of an options dialog, and below it the bar with the button that leads on. The browser
/// is a view and nothing more: what the user chose stays in the hidden controls of the dialog, and
/// a page that doesn't come up costs the user the panel alone. Nothing here reports a failure. All
/// lengths are twips.
namespace panels {

/// Composes the page and shows it.
void ShowActionPanel(session::Host& host, forms::WebBrowser& browser, const ActionPanel& panel);

/// Shows a finished page. All dialogs share one file in the temporary folder, which stays there.
void NavigatePanelFile(session::Host& host, forms::WebBrowser& browser, std::string_view page);

/// The trimmed value of a field of the page; `fallback` where there is no page or no such field.
[[nodiscard]] std::string ReadFieldValue(const forms::WebBrowser& browser, std::string_view id,
                                         std::string_view fallback);

/// The bar of a dialog.
struct ActionBar {
    forms::Label& bar;
    forms::CommandButton& button;
    forms::Label& border;
};

/// The whole placement with the theme, once per dialog, at the end of its `Form_Load`.
void SetupActionPanel(forms::Form& form, forms::WebBrowser& browser, const ActionBar& parts);

/// Along the foot of the form: border, bar and button.
void LayoutActionBar(const forms::Form& form, const ActionBar& parts);

/// Between `top` and the bar less a gap. Never lower than 1500, even where it then covers the bar.
void LayoutActionBrowser(const forms::Form& form, forms::WebBrowser& browser,
                         const forms::Label& bar, forms::Twips top, forms::Twips gap);

/// Its caption and its looks are the theme's.
void PlaceContinueButton(forms::CommandButton& button, const forms::Place& place);

/// The stacking after each render: the browser on top of everything.
void RestoreActionZOrder(forms::WebBrowser& browser, const ActionBar& parts);

}  // namespace panels

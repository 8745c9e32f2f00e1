#pragma once

#include <string>
#include <string_view>

#include "forms/web_browser.h"
#include "furniture/theme.h"  // IWYU pragma: export
#include "panels/panel_page.h"
#include "session/host.h"

/// The strip of an options dialog. The browser is a view and nothing more: what the user chose
/// stays in the hidden controls of the dialog, and a page that doesn't come up costs the user the
/// panel alone. Nothing here reports a failure.
namespace panels {

using furniture::ApplyBrowserBackground;

/// Composes the page and shows it.
void ShowActionPanel(session::Host& host, forms::WebBrowser& browser, const ActionPanel& panel);

/// Shows a finished page. All dialogs share one file in the temporary folder, which stays there.
void NavigatePanelFile(session::Host& host, forms::WebBrowser& browser, std::string_view page);

/// The trimmed value of a field of the page; `fallback` where there is no page or no such field.
[[nodiscard]] std::string ReadFieldValue(const forms::WebBrowser& browser, std::string_view id,
                                         std::string_view fallback);

}  // namespace panels

#pragma once

#include <string_view>

#include "forms/web_browser.h"

namespace furniture {

/// Paints the document of a browser, so that no white shows behind its page; `colour` as style
/// sheets write it. Nothing happens without a document that is complete, and nothing tries again.
void ApplyBrowserBackground(forms::WebBrowser& browser, std::string_view colour);

}  // namespace furniture

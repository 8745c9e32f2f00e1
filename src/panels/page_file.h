#pragma once

#include <string_view>

#include "forms/web_browser.h"
#include "session/host.h"

namespace panels {

/// Writes a page to a file in the temporary folder and has the browser show it; no dialog of the
/// page will ever appear. Returns at once: whether the page is on its way. An empty one is not, nor
/// one that can't be written: what an earlier file of that name holds is not what is to be said.
/// With a section the page is shown from the element with that id on; the browser must not show the
/// file yet.
bool navigateToPage(session::Host& host, forms::WebBrowser& browser, std::string_view fileName,
                    std::string_view page, std::string_view section = {});

}  // namespace panels

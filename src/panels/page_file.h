#pragma once

#include <string_view>

#include "forms/web_browser.h"
#include "session/host.h"

namespace panels {

/// Writes a page to a file in the temporary folder and has the browser show it; no dialog of the
/// page will ever appear. Returns at once. Where the file can't be written the browser shows what
/// the earlier one holds. Nothing happens for an empty page, or without a temporary folder.
void navigateToPage(session::Host& host, forms::WebBrowser& browser, std::string_view fileName,
                    std::string_view page);

}  // namespace panels

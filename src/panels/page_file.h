#pragma once

#include <string>
#include <string_view>

#include "forms/web_browser.h"
#include "session/host.h"

namespace panels {

/// The address of a file on this machine. The path goes in as it stands, its backslashes turned
/// into slashes.
[[nodiscard]] std::string fileUrl(std::string_view path);

/// Writes a page to a file in the temporary folder and has the browser show it; no dialog of the
/// page will ever appear. Returns at once. Where the file can't be written the browser shows what
/// the earlier one holds. Nothing happens for an empty page, or without a temporary folder.
void navigateToPage(session::Host& host, forms::WebBrowser& browser, std::string_view fileName,
                    std::string_view page);

}  // namespace panels

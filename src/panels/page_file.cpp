#include "panels/page_file.h"

#include "office/failure_patterns.h"
#include "office/text.h"

namespace panels {

std::string fileUrl(std::string_view path) {
    const std::string slashed = office::replaceAll(path, "\\", "/");
    // Where paths begin with a slash of their own, it is the third one of the scheme.
    return (slashed.starts_with("/") ? "file://" : "file:///") + slashed;
}

void navigateToPage(session::Host& host, forms::WebBrowser& browser, std::string_view fileName,
                    std::string_view page) {
    if (page.empty()) return;
    office::ContinueOnFailure scope;
    std::string path;
    if (!scope.attempt([&] { path = host.temporaryFile(fileName); })) return;
    scope.attempt([&] { host.writeTemporaryFile(fileName, std::string(page) + "\r\n"); });
    browser.silent = true;
    browser.navigate(fileUrl(path));
}

}  // namespace panels

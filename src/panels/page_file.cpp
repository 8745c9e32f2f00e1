#include "panels/page_file.h"

#include "office/failure_patterns.h"
#include "session/file_names.h"

namespace panels {

void navigateToPage(session::Host& host, forms::WebBrowser& browser, std::string_view fileName,
                    std::string_view page) {
    if (page.empty()) return;
    office::ContinueOnFailure scope;
    std::string path;
    if (!scope.attempt([&] { path = host.temporaryFile(fileName); })) return;
    scope.attempt([&] { host.writeTemporaryFile(fileName, std::string(page) + "\r\n"); });
    browser.navigate(session::fileAddress(path));
}

}  // namespace panels

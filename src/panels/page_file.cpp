#include "panels/page_file.h"

#include "office/failure_patterns.h"
#include "session/file_names.h"

namespace panels {

bool navigateToPage(session::Host& host, forms::WebBrowser& browser, std::string_view fileName,
                    std::string_view page, std::string_view section) {
    if (page.empty()) return false;
    return office::ContinueOnFailure().attempt([&] {
        const std::string path = host.temporaryFile(fileName);
        host.writeTemporaryFile(fileName, std::string(page) + "\r\n");
        std::string address = session::fileAddress(path);
        if (!section.empty()) (address += '#') += section;
        browser.navigate(address);
    });
}

}  // namespace panels

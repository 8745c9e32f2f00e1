#include "session/web_pages.h"

#include <fmt/format.h>

#include "session/file_names.h"

namespace session {

std::string addressOf(Host& host, const WebPage& page) {
    const auto wanted = host.environment(page.variable);
    if (wanted) return *wanted;
    return fileAddress(fmt::format("{}/{}", host.helpFolder(), page.helpFile));
}

void OpenDocOverview(OfficeSession& session) {
    session.host.openLink(addressOf(session.host, docOverview));
}

void OpenDocFaq(OfficeSession& session) {
    session.host.openLink(addressOf(session.host, docFaq));
}

void OpenContactPage(OfficeSession& session) {
    session.host.openLink(addressOf(session.host, contactPage));
}

}  // namespace session

#include "session/web_pages.h"

#include <fmt/format.h>

#include "session/file_names.h"

namespace session {

namespace {

void openOrName(OfficeSession& session, const WebPage& page) {
    const std::string address = addressOf(session.host, page);
    if (!session.host.openLink(address)) ShowInfoNotice(session.notices, cantOpen(address));
}

}  // namespace

std::string addressOf(Host& host, const WebPage& page) {
    const auto wanted = host.environment(page.variable);
    if (wanted) return *wanted;
    return fileAddress(fmt::format("{}/{}", host.helpFolder(), page.helpFile));
}

std::string cantOpen(std::string_view where) {
    return fmt::format("There is no program to open it with. It is here:\r{}", where);
}

void OpenDocOverview(OfficeSession& session) {
    openOrName(session, docOverview);
}

void OpenDocFaq(OfficeSession& session) {
    openOrName(session, docFaq);
}

void OpenContactPage(OfficeSession& session) {
    openOrName(session, contactPage);
}

}  // namespace session

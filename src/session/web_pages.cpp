#include "session/web_pages.h"

namespace session {

void OpenDocOverview(OfficeSession& session) {
    session.host.openLink(address::docOverview);
}

void OpenDocFaq(OfficeSession& session) {
    session.host.openLink(address::docFaq);
}

void OpenContactPage(OfficeSession& session) {
    session.host.openLink(address::contact);
}

}  // namespace session

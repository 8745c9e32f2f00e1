#pragma once

#include "session/office_session.h"

/// Pages that the user's browser shows. Whether it does is nobody's concern here.
namespace session {

void OpenDocOverview(OfficeSession& session);
void OpenDocFaq(OfficeSession& session);
void OpenContactPage(OfficeSession& session);

}  // namespace session

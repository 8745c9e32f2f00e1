#include "powerpoint/read_only.h"

#include "office/failure_patterns.h"

namespace powerpoint {

bool refusesAsReadOnly(session::OfficeSession& session) {
    const bool isReadOnly =
        office::orElse([&] { return session.SessionPresentation.get("ReadOnly").toBool(); }, false);
    if (isReadOnly) {
        session::ShowWarningNotice(session.notices,
                                   "The presentation is opened for reading only.\r"
                                   "Open it for editing or save it under another name,\r"
                                   "then continue.");
    }
    return isReadOnly;
}

}  // namespace powerpoint

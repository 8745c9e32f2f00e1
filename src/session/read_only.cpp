#include "session/read_only.h"

#include <fmt/format.h>

#include "office/failure_patterns.h"
#include "session/notices.h"

namespace session {

bool isReadOnly(const office::Object& document) {
    return office::orElse([&] { return document.get("ReadOnly").toBool(); }, false);
}

bool refusesAsReadOnly(OfficeSession& session, const office::Object& document,
                       std::string_view kind) {
    const bool refuses = isReadOnly(document);
    if (refuses) {
        ShowWarningNotice(session.notices,
                          fmt::format("The {} is opened for reading only.\r"
                                      "Open it for editing or save it under another name,\r"
                                      "then continue.",
                                      kind));
    }
    return refuses;
}

}  // namespace session

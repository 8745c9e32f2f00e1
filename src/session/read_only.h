#pragma once

#include <string_view>

#include "session/office_session.h"

namespace session {

/// Whether a document of any application is opened for reading only; false if it doesn't say.
[[nodiscard]] bool isReadOnly(const office::Object& document);

/// Whether a presentation or a document is opened for reading only; the user has then been told so
/// and how to go on. To be asked ahead of whatever changes it: the formats have notices of their
/// own that would give another reason, or none. `kind` is what the notice calls it.
[[nodiscard]] bool refusesAsReadOnly(OfficeSession& session, const office::Object& document,
                                     std::string_view kind);

}  // namespace session

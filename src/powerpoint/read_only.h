#pragma once

#include "session/office_session.h"

namespace powerpoint {

/// Whether the session's presentation is opened for reading only; the user has then been told so
/// and how to go on. To be asked ahead of whatever changes it: the formats have notices of their
/// own that would give another reason, or none.
[[nodiscard]] bool refusesAsReadOnly(session::OfficeSession& session);

}  // namespace powerpoint

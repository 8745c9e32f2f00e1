#pragma once

#include "session/launcher.h"
#include "session/office_session.h"

namespace apps {

/// What the commands on the selection run, with windows or without. The session has to outlive it.
[[nodiscard]] session::CommandHandlers selectionHandlers(session::OfficeSession& session);

}  // namespace apps

#pragma once

#include <functional>

#include "session/office_session.h"

namespace session {

/// The single way out of a command: lets go of workbook, presentation and applications, and unloads
/// all forms, which live in higher layers. The applications keep running. Failures are passed over.
///
/// The process ends by `Main` returning to the program, which leaves with the exit status of the
/// command: an end from in here would skip the destructors that give back locks, files and
/// connections.
void CloseSession(OfficeSession& session, const std::function<void()>& unloadAllForms);

}  // namespace session

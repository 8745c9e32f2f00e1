#pragma once

#include <functional>
#include <string_view>

#include "session/office_session.h"

namespace session {

/// How the core gets rid of forms, which live in higher layers. One that is not supplied has
/// nothing to unload.
struct FormHooks {
    /// Unloads one form if it is loaded: "UserformObj", "Dialog", ...
    std::function<void(std::string_view formName)> UnloadForm;
    /// Unloads all of them, from the last to the first, until one refuses.
    std::function<void()> UnloadAllForms;
};

/// The single way out of a command: clears the flags of open forms, lets go of workbook,
/// presentation and applications, and unloads all forms. The applications keep running. Failures
/// are passed over.
///
/// The process ends by `Main` returning to the program, which leaves with the exit status of the
/// command: an end from in here would skip the destructors that give back locks, files and
/// connections.
void CloseSession(OfficeSession& session, const FormHooks& forms);

/// The end after an export: unloads the forms one by one, the main form with its list saved, then
/// lets go of presentation and applications. Clears `MainFormOpen`, by which the program ends as
/// after `CloseSession`.
void CloseAllAndEnd(OfficeSession& session, const FormHooks& forms);

}  // namespace session

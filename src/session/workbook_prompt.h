#pragma once

#include <string_view>

#include "session/office_session.h"

namespace session {

/// Asks for a workbook file and opens it. The notices for a cancelled choice and for a file that is
/// in use don't keep the opening from being tried. Failures are passed over.
void OpenWorkbookPrompt(OfficeSession& session);

/// Whether another process holds the file. `fallback` for a blank name and for a file that isn't
/// there.
[[nodiscard]] bool IsFileOpen(OfficeSession& session, std::string_view fileName,
                              bool fallback = false);

}  // namespace session

#pragma once

#include <string_view>

#include "session/office_session.h"

namespace session {

/// Asks for a workbook file and opens it. The notices for a cancelled choice and for a file that is
/// in use don't keep the opening from being tried. A file that can't be opened is told; other
/// failures are passed over.
void OpenWorkbookPrompt(OfficeSession& session);

/// Whether the file is there and another process holds it.
[[nodiscard]] bool IsFileOpen(OfficeSession& session, std::string_view fileName);

}  // namespace session

#pragma once

#include <string>

#include "session/office_session.h"

/// What the dialogs of the destinations that write to a folder have in common.
namespace destinations {

/// Whether the folder is there, or could be made now, and takes files.
[[nodiscard]] bool takesOutput(session::OfficeSession& session, const std::string& folder);
/// What a dialog says if it isn't so.
[[nodiscard]] std::string cantWriteTo(session::OfficeSession& session, const std::string& folder);

/// Opens what was made with the user's program for it; a notice says where it is if there is none.
void openOrName(session::OfficeSession& session, const std::string& path);

}  // namespace destinations

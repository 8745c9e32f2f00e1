#pragma once

#include "session/office_session.h"

/// What the exports to slides do with PowerPoint before their own work. Nothing here tells the user
/// anything.
namespace session {

/// Takes the running PowerPoint, or leaves `PowerPointApp` empty. Sets `PowerPointFound`.
void AttachPowerPoint(OfficeSession& session);

/// The window of the session's presentation. Failures go to the caller.
[[nodiscard]] office::Object PresentationWindow(const OfficeSession& session);

/// Brings that window to the front, by its caption. Nothing moves where there is none.
void RaisePresentation(OfficeSession& session);

/// Ahead of a batch: an empty clipboard and no running show. Returns the view type, 0 if it can't
/// be read, and leaves it alone, since a batch works in whatever view the user has. Failures are
/// passed over.
std::int32_t PrepareSlideView(OfficeSession& session);

/// Ahead of a paste of the selection: an empty clipboard, no running show, and normal view. Returns
/// the view type found, 0 if it can't be read. Failures are passed over.
std::int32_t ExitShowNormalView(OfficeSession& session);

}  // namespace session

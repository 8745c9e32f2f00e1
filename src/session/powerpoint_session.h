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

/// Ahead of a batch: no progress yet, an empty clipboard, no running show; notes the view type and
/// leaves it alone, since a batch works in whatever view the user has. Failures are passed over.
void PrepareSlideView(OfficeSession& session);

/// Ahead of a paste of the selection: an empty clipboard, no running show, and normal view; the
/// view type found is noted. Failures are passed over.
void ExitShowNormalView(OfficeSession& session);

}  // namespace session

#pragma once

#include "session/office_session.h"

/// What the exports to slides do with PowerPoint before their own work. Nothing here tells the user
/// anything.
namespace session {

/// Takes the running PowerPoint, or leaves `PowerPointApp` empty. Sets `PowerPointFound`.
void AttachPowerPoint(OfficeSession& session);

/// Sets `PresentationsFound`. Plain code: needs a `PowerPointApp` that answers.
void CheckPresentations(OfficeSession& session);

/// Ahead of a batch: no progress yet, an empty clipboard, no running show; notes the view type and
/// leaves it alone, since a batch works in whatever view the user has. Failures are passed over.
void PrepareSlideView(OfficeSession& session);

/// Ahead of a paste of the selection: an empty clipboard, no running show, and normal view; the
/// view type found is noted. Failures are passed over.
void ExitShowNormalView(OfficeSession& session);

}  // namespace session

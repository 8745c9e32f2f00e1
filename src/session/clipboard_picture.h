#pragma once

#include "session/office_session.h"

namespace session {

/// The picture on the clipboard: its bitmap for format 2, its vector picture for any other. Without
/// bytes if the clipboard has none of the kind.
[[nodiscard]] office::ClipboardPicture ClipboardPicture(OfficeSession& session, int format);

}  // namespace session

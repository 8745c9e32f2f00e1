#pragma once

#include "session/launcher.h"
#include "session/office_session.h"

namespace destinations {

/// Puts what is selected in Excel where the caret of the open Word document is: as a picture, as an
/// embedded or a linked object, or as a table. Charts, chart sheets and cells can be selected; a
/// chart becomes no table. What has come is made as wide as the text, but a picture of cells and a
/// table. A message box says what is missing, and asks before more than one selected letter is
/// replaced.
///
/// Failures of the applications go to the caller; those of the embedded object are told in a
/// message box.
void PasteSelectionToWord(session::OfficeSession& session, session::WordPaste mode);

}  // namespace destinations

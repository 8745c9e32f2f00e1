#pragma once

#include "catalogue/export_choices.h"
#include "forms/controls.h"
#include "session/office_session.h"

namespace catalogue {

/// What became of copying a row's object for its picture.
enum class PreviewCopy { Copied, SeveralAreas };

/// Copies the object of a row to Excel's clipboard, as a click on the row does. Plain code: the
/// failure of an object that has gone passes through.
PreviewCopy copyForPreview(session::OfficeSession& session, const ExportItem& row);

/// The same while the list is loaded: a range goes by where its name points to and as a picture of
/// the screen, and nobody asks for its areas. Plain code.
void copyForFirstPreview(session::OfficeSession& session, const ExportItem& row);

/// What the clipboard holds, as a picture for a form; empty if it is no picture.
[[nodiscard]] forms::Picture pictureOnClipboard(session::OfficeSession& session);

}  // namespace catalogue

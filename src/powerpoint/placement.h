#pragma once

#include "office/value.h"
#include "session/office_session.h"

/// Where a shape that has just arrived on a slide ends up, and how big it is. All lengths are
/// points from the slide's top left corner.
namespace powerpoint {

/// Centres a picture that was just inserted at its natural size, after cutting its width and its
/// height, each on its own, to nine tenths of the slide's. A smaller picture is never enlarged.
void FitPictureToSlide(const office::Object& picture, const office::Object& presentation);

/// Reads the user's placement from the store into the session, deriving the top from the slide's
/// title where the store leaves it open. A failure ends it quietly with what was read so far;
/// without a store nothing changes.
void LoadSlidePlacement(session::OfficeSession& session);

/// Moves and sizes the last shape of slide `CurrentSlideIndex` by the placement in the session. The
/// shape is selected afterwards and the clipboard is empty. Does nothing without a store; failures
/// go to the caller.
void PlaceLastShape(session::OfficeSession& session);

/// Writes the workbook's full path in small grey letters on the slide in the active window.
/// Failures go to the caller.
void AddSourceLine(session::OfficeSession& session);

}  // namespace powerpoint

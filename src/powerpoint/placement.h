#pragma once

#include <optional>

#include "office/copied.h"
#include "office/value.h"
#include "session/office_session.h"

/// Where a shape that has just arrived on a slide ends up, and how big it is. All lengths are
/// points from the slide's top left corner; slides are those of the session's presentation.
namespace powerpoint {

/// Centres a picture that was just inserted at its natural size, after cutting its width and its
/// height, each on its own, to nine tenths of the slide's. A smaller picture is never enlarged.
void FitPictureToSlide(const office::Object& picture, const office::Object& presentation);

/// The title of a slide, in points. A slide without one takes that of the slide before.
struct TitlePlace {
    double topPt = 0;
    double heightPt = 0;
};

/// Moves and sizes the last of a slide's shapes as the store of the workbook says: below the
/// slide's title where it leaves the top open, and always so that the shape stays visible. `title`
/// is that of the slide before and becomes that of this one. The clipboard is empty afterwards.
/// Does nothing without a store; failures go to the caller.
void PlaceLastShape(session::OfficeSession& session, const office::Object& shapes,
                    TitlePlace& title);

/// What there is room for where `PlaceLastShape` will place a shape on this slide; nothing if it
/// won't. Failures go to the caller.
[[nodiscard]] std::optional<office::RoomForTable> RoomForLastShape(session::OfficeSession& session,
                                                                   const office::Object& shapes,
                                                                   TitlePlace title);

/// Writes the workbook's full path in small grey letters below a slide's shapes. Failures go to the
/// caller.
void AddSourceLine(session::OfficeSession& session, const office::Object& shapes);

}  // namespace powerpoint

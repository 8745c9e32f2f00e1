#pragma once

#include "session/office_session.h"

namespace session {

/// Whether two ranges have a cell in common. Plain code: ranges of different sheets are a
/// `Failure`.
[[nodiscard]] bool RangesIntersect(OfficeSession& session, const office::Object& first,
                                   const office::Object& second);

}  // namespace session

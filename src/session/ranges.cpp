#include "session/ranges.h"

namespace session {

bool RangesIntersect(OfficeSession& session, const office::Object& first,
                     const office::Object& second) {
    return !session.ExcelApp.call("Intersect", first, second).toObject().isNothing();
}

}  // namespace session

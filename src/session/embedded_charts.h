#pragma once

#include "session/office_session.h"

namespace session {

/// Whether the selection has a cell under a chart of the active sheet. False where that can't be
/// told: another selection than a range, a chart sheet.
[[nodiscard]] bool selectionTouchesEmbeddedChart(OfficeSession& session);

}  // namespace session

#pragma once

#include <cstdint>

#include "session/office_session.h"

namespace session {

/// Waits for the clipboard and the applications to catch up, letting events run meanwhile. With a
/// suite whose copy and paste have finished when the call returns there is nothing to wait for:
/// events then run once.
void WaitMilliseconds(OfficeSession& session, std::int32_t duration);

}  // namespace session

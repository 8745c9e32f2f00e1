#pragma once

#include <cstdint>

#include "session/office_session.h"

namespace session {

/// Waits for the clipboard and the applications to catch up, letting events run meanwhile. With a
/// suite whose copy and paste have finished when the call returns there is nothing to wait for:
/// events then run once.
void WaitMilliseconds(OfficeSession& session, std::int32_t duration);

/// The same without letting events run.
void SleepMilliseconds(OfficeSession& session, std::uint32_t duration);

/// Lets events run so many times, for a command that goes on in the application after its call has
/// returned; once where none does.
void PumpEvents(OfficeSession& session, std::int32_t rounds);

}  // namespace session

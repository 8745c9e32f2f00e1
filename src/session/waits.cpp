#include "session/waits.h"

namespace session {

namespace {

/// The clock as the waits compare it. A wait that crosses the counter's change of sign ends early,
/// which is harmless; the same comparison made unsigned could last for weeks.
std::int32_t signedTicks(std::uint32_t ticks) {
    return static_cast<std::int32_t>(ticks);
}

}  // namespace

void WaitMilliseconds(OfficeSession& session, std::int32_t duration) {
    if (session.suite.pacing() == office::Pacing::FinishedOnReturn) {
        session.host.letEventsRun();
        return;
    }
    const std::int32_t end =
        signedTicks(session.host.tickCount() + static_cast<std::uint32_t>(duration));
    while (signedTicks(session.host.tickCount()) < end) {
        session.host.sleep(1);
        session.host.letEventsRun();
    }
}

void SleepMilliseconds(OfficeSession& session, std::uint32_t duration) {
    if (session.suite.pacing() == office::Pacing::Asynchronous) session.host.sleep(duration);
}

void PumpEvents(OfficeSession& session, std::int32_t rounds) {
    const bool goesOn = session.suite.pacing() == office::Pacing::Asynchronous;
    for (std::int32_t round = 0; round < (goesOn ? rounds : 1); ++round)
        session.host.letEventsRun();
}

}  // namespace session

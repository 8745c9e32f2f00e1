#pragma once

#include <optional>

#include "office/failure.h"
#include "session/office_session.h"

namespace session {

/// What stands in the last-failure record when the lock could not be taken. Nobody is told: without
/// a lock PowerPoint merely redraws while a shape is moved.
enum class LockFailure : std::int32_t {
    NoWindow = static_cast<std::int32_t>(0x80040000U + 1000U),
    NotLocked = static_cast<std::int32_t>(0x80040000U + 1001U),
    NewerVersion = static_cast<std::int32_t>(0x80040000U + 1002U),
};

/// Freezes the drawing of PowerPoint's top window, or thaws it with `release`. `ExcelVersionTag`
/// holds PowerPoint's tag afterwards. Returns the last failure; there is no need to look at it.
std::optional<office::Failure> PowerPointWindowLock(OfficeSession& session, bool release);

/// Holds the lock while it lives.
class PowerPointWindowLockScope {
public:
    explicit PowerPointWindowLockScope(OfficeSession& session) : session_(session) {
        PowerPointWindowLock(session_, false);
    }
    /// A lost application has no window left to thaw.
    ~PowerPointWindowLockScope();
    PowerPointWindowLockScope(const PowerPointWindowLockScope&) = delete;
    PowerPointWindowLockScope& operator=(const PowerPointWindowLockScope&) = delete;

private:
    OfficeSession& session_;
};

}  // namespace session

#include "session/window_lock.h"

#include <string>
#include <string_view>

#include "office/failure_patterns.h"
#include "session/version_tag.h"

namespace session {

namespace {

/// PowerPoint's top window class by version; empty for a version that isn't known, and there never
/// was a 13.
std::string_view frameClass(std::string_view versionTag) {
    if (versionTag == "8") return "PP97FrameClass";
    if (versionTag == "9") return "PP9FrameClass";
    if (versionTag == "10") return "PP10FrameClass";
    if (versionTag == "11") return "PP11FrameClass";
    if (versionTag == "12") return "PP12FrameClass";
    if (versionTag == "14" || versionTag == "15" || versionTag == "16") return "PPTFrameClass";
    return {};
}

office::Failure lockFailure(LockFailure number, const std::string& description) {
    return {static_cast<std::int32_t>(number), "PowerPointWindowLock", description};
}

void takeLock(OfficeSession& session, office::ContinueOnFailure& scope) {
    scope.attempt([&] {
        session.ExcelVersionTag = versionTag(session.PowerPointApp.get("Version").toText());
    });
    const std::string_view className = frameClass(session.ExcelVersionTag);
    if (className.empty()) {
        scope.raise(lockFailure(LockFailure::NewerVersion, "Newer version."));
        return;
    }
    scope.attempt([&] { session.PowerPointFrameHandle = session.suite.findWindow(className, {}); });
    if (session.PowerPointFrameHandle == 0) {
        scope.raise(
            lockFailure(LockFailure::NoWindow, "Unable to get the PowerPoint Window handle"));
        return;
    }
    scope.attempt([&] {
        if (!session.suite.lockDrawing(session.PowerPointFrameHandle)) {
            throw lockFailure(LockFailure::NotLocked, "Unable to set a  PowerPoint window lock");
        }
    });
}

}  // namespace

std::optional<office::Failure> PowerPointWindowLock(OfficeSession& session, bool release) {
    office::ContinueOnFailure scope;
    if (release) {
        scope.attempt([&] { session.suite.unlockDrawing(); });
        scope.attempt([&] { session.suite.redraw(session.PowerPointFrameHandle); });
        session.PowerPointFrameHandle = 0;
    } else {
        takeLock(session, scope);
    }
    return scope.lastFailure();
}

PowerPointWindowLockScope::~PowerPointWindowLockScope() {
    try {
        PowerPointWindowLock(session_, true);
    } catch (const office::SuiteLost&) {
        session_.PowerPointFrameHandle = 0;
    }
}

}  // namespace session

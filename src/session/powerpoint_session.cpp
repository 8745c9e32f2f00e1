#include "session/powerpoint_session.h"

#include <string>
#include <string_view>

#include "office/at_end.h"
#include "office/failure_patterns.h"

namespace session {

namespace {

constexpr std::int32_t normalView = 9;

void endShow(OfficeSession& session, const office::Object& presentation) {
    if (session.PowerPointApp.get("SlideShowWindows").get("Count").toLong() > 0) {
        presentation.get("SlideShowWindow").get("View").call("Exit");
    }
}

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
    std::string version;
    scope.attempt([&] { version = session.PowerPointApp.get("Version").toText(); });
    const std::string_view className = frameClass(version.substr(0, version.find('.')));
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

void AttachPowerPoint(OfficeSession& session) {
    office::ContinueOnFailure scope;
    session.PowerPointApp.release();
    scope.attempt([&] { session.PowerPointApp = session.suite.attach("PowerPoint.Application"); });
    session.PowerPointFound = !session.PowerPointApp.isNothing();
}

office::Object PresentationWindow(const OfficeSession& session) {
    return session.SessionPresentation.get("Windows").get("Item", 1).toObject();
}

void RaisePresentation(OfficeSession& session) {
    const std::string caption = session.SessionPresentation.get("Name").toText() + " - PowerPoint";
    BringWindowToFront(session, caption);
}

std::int32_t PrepareSlideView(OfficeSession& session) {
    office::ContinueOnFailure scope;
    scope.attempt([&] { session.suite.clearClipboard(); });
    scope.attempt([&] { endShow(session, session.SessionPresentation); });
    return scope.read([&] { return PresentationWindow(session).get("ViewType").toLong(); }, 0);
}

std::int32_t ExitShowNormalView(OfficeSession& session) {
    office::ContinueOnFailure scope;
    const office::Object& app = session.PowerPointApp;
    scope.attempt([&] { session.suite.clearClipboard(); });
    scope.attempt([&] { endShow(session, app.get("ActivePresentation").toObject()); });
    const std::int32_t found =
        scope.read([&] { return app.get("ActiveWindow").get("ViewType").toLong(); }, 0);
    if (found != normalView) {
        scope.attempt([&] { app.get("ActiveWindow").put("ViewType", normalView); });
    }
    return found;
}

std::optional<office::Failure> PutBackView(const office::Object& window, std::int32_t viewType) {
    office::ContinueOnFailure scope;
    scope.attempt([&] { window.put("ViewType", viewType); });
    const auto& failure = scope.lastFailure();
    const bool isOfPicture = failure && failure->source() == "Shapes.AddPicture";
    return isOfPicture ? failure : std::nullopt;
}

void SetExcelWindow(OfficeSession& session, ExcelWindow state) {
    session.ExcelApp.put("WindowState", static_cast<std::int32_t>(state));
}

bool BringWindowToFront(OfficeSession& session, std::string_view caption) {
    const office::WindowHandle window = session.suite.findWindow({}, caption);
    return window != 0 && session.suite.raiseWindow(window);
}

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
    office::asFarAsPossible([this] { PowerPointWindowLock(session_, true); });
    session_.PowerPointFrameHandle = 0;
}

}  // namespace session

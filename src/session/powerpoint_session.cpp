#include "session/powerpoint_session.h"

#include <string>

#include "office/failure_patterns.h"
#include "session/window_helpers.h"

namespace session {

namespace {

constexpr std::int32_t normalView = 9;

void endShow(OfficeSession& session, const office::Object& presentation) {
    if (session.PowerPointApp.get("SlideShowWindows").get("Count").toLong() > 0) {
        presentation.get("SlideShowWindow").get("View").call("Exit");
    }
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
    constexpr int showNormal = 1;
    const std::string caption = session.SessionPresentation.get("Name").toText() + " - PowerPoint";
    office::WindowHandle window = 0;
    BringWindowToFront(session, caption, window, showNormal);
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

}  // namespace session

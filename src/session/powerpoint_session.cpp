#include "session/powerpoint_session.h"

#include <string>

#include "office/failure_patterns.h"
#include "session/window_helpers.h"

namespace session {

namespace {

constexpr std::int16_t normalView = 9;

void endShow(OfficeSession& session, const office::Object& presentation) {
    if (session.PowerPointApp.get("SlideShowWindows").get("Count").toLong() > 0) {
        presentation.get("SlideShowWindow").get("View").call("Exit");
    }
}

void noteView(OfficeSession& session, const office::Object& window) {
    session.SavedViewType = static_cast<std::int16_t>(window.get("ViewType").toLong());
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

void PrepareSlideView(OfficeSession& session) {
    office::ContinueOnFailure scope;
    session.ProgressCount = 0;
    scope.attempt([&] { session.suite.clearClipboard(); });
    scope.attempt([&] { endShow(session, session.SessionPresentation); });
    scope.attempt([&] { noteView(session, PresentationWindow(session)); });
}

void ExitShowNormalView(OfficeSession& session) {
    office::ContinueOnFailure scope;
    const office::Object& app = session.PowerPointApp;
    scope.attempt([&] { session.suite.clearClipboard(); });
    scope.attempt([&] { endShow(session, app.get("ActivePresentation").toObject()); });
    scope.attempt([&] { noteView(session, app.get("ActiveWindow").toObject()); });
    if (session.SavedViewType != normalView) {
        scope.attempt([&] { app.get("ActiveWindow").put("ViewType", int{normalView}); });
    }
}

}  // namespace session

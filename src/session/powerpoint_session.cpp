#include "session/powerpoint_session.h"

#include "office/failure_patterns.h"

namespace session {

namespace {

constexpr std::int16_t normalView = 9;

void endShowAndNoteView(OfficeSession& session, office::ContinueOnFailure& scope) {
    const office::Object& app = session.PowerPointApp;
    scope.attempt([&] { session.suite.clearClipboard(); });
    scope.attempt([&] {
        if (app.get("SlideShowWindows").get("Count").toLong() > 0) {
            app.get("ActivePresentation").get("SlideShowWindow").get("View").call("Exit");
        }
    });
    scope.attempt([&] {
        session.SavedViewType =
            static_cast<std::int16_t>(app.get("ActiveWindow").get("ViewType").toLong());
    });
}

}  // namespace

void AttachPowerPoint(OfficeSession& session) {
    office::ContinueOnFailure scope;
    session.PowerPointApp.release();
    scope.attempt([&] { session.PowerPointApp = session.suite.attach("PowerPoint.Application"); });
    session.PowerPointFound = !session.PowerPointApp.isNothing();
}

void CheckPresentations(OfficeSession& session) {
    session.PresentationsFound =
        session.PowerPointApp.get("Presentations").get("Count").toLong() > 0;
}

void PrepareSlideView(OfficeSession& session) {
    office::ContinueOnFailure scope;
    session.ProgressCount = 0;
    endShowAndNoteView(session, scope);
}

void ExitShowNormalView(OfficeSession& session) {
    office::ContinueOnFailure scope;
    endShowAndNoteView(session, scope);
    if (session.SavedViewType != normalView) {
        scope.attempt(
            [&] { session.PowerPointApp.get("ActiveWindow").put("ViewType", int{normalView}); });
    }
}

}  // namespace session

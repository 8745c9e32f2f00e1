#include "powerpoint/progress.h"

#include <fmt/format.h>

#include "office/failure_patterns.h"

namespace powerpoint {

void ProgressStep(session::OfficeSession& session, const session::FormHooks& forms) {
    if (!session.ExportKeepsDialogs && forms.UnloadForm) {
        office::ContinueOnFailure scope;
        for (const char* dialog : {"Dialog", "DialogWord", "DialogPDF", "DialogHTML"}) {
            scope.attempt([&] { forms.UnloadForm(dialog); });
        }
    }
    session::ProgressDisplay& progress = session.progress;
    ++session.ProgressCount;
    progress.setTotal(session.CheckedCount);
    // A percentage against a count of items: at the item whose percentage happens to be the total,
    // the bar rests.
    if (progress.value() != session.CheckedCount && session.CheckedCount != 0) {
        const int percent = session.ProgressCount * 100 / session.CheckedCount;
        progress.setValue(percent, fmt::format("{}%", percent));
        progress.setCurrent(session.ProgressCount);
    } else {
        progress.redraw();
    }
    progress.show();
    session.host.letEventsRun();
}

void ProgressFinish(session::OfficeSession& session) {
    if (session.CheckedCount <= 0) return;
    session::ProgressDisplay& progress = session.progress;
    session.ProgressCount = session.CheckedCount;
    progress.setTotal(session.CheckedCount);
    progress.setCurrent(session.ProgressCount);
    progress.show();
    progress.setValue(100, "100%");
    session.host.letEventsRun();
}

void RestoreScreenUpdating(session::OfficeSession& session) {
    office::ContinueOnFailure scope;
    scope.attempt([&] { session.ExcelApp.put("ScreenUpdating", true); });
    // PowerPoint has no such property in any version that we know of; one that had it would need
    // it.
    scope.attempt([&] { session.PowerPointApp.put("ScreenUpdating", true); });
    session.host.letEventsRun();
}

}  // namespace powerpoint

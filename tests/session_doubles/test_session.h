#pragma once

#include "office_double/suite.h"
#include "session/office_session.h"
#include "session_doubles/recording_notices.h"
#include "session_doubles/recording_progress.h"
#include "session_doubles/scripted_host.h"

namespace session_doubles {

/// A session with applications in memory. Nothing runs until a test makes it run.
///
///     TestSession test;
///     test.suite.excel().addWorkbook("Book1.xlsx").sheet("Sales").chart("Chart 1");
///     test.attach();
struct TestSession {
    office_double::DoubleSuite suite;
    ScriptedHost host;
    RecordingNotices notices;
    RecordingProgress progress;
    session::OfficeSession session{suite, host, notices, progress};

    /// Takes the references that the launcher takes, then forgets the calls it took.
    void attach() {
        session.ExcelApp = suite.attach("Excel.Application");
        if (session.ExcelApp)
            session.ActiveBook = session.ExcelApp.get("ActiveWorkbook").toObject();
        session.PowerPointApp = suite.attach("PowerPoint.Application");
        suite.log().clear();
    }

    /// The active workbook as a test reads it.
    [[nodiscard]] office::Object sheet(const char* name) const {
        return session.ActiveBook.get("Sheets").get("Item", name).toObject();
    }
};

}  // namespace session_doubles

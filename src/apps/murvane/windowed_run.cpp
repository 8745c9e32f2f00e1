#include "apps/murvane/windowed_run.h"

#include "apps/failure_report.h"
#include "apps/murvane/windows.h"
#include "desktop/forms_runner.h"
#include "office/libreoffice/libreoffice_suite.h"
#include "panels/form_progress.h"
#include "panels/notices.h"

namespace apps {

bool canShowWindows() {
    return desktop::screenAnswers();
}

int runInWindows(int count, char** words, const std::string& commandLine, Console& console) {
    desktop::FormsRunner runner(count, words);
    return runCommandOn(runner.desktop(), commandLine, console);
}

int runCommandOn(forms::Desktop& desktop, const std::string& commandLine, Console& console) {
    DesktopHost host(console, desktop);
    panels::NoticePanel notices(desktop, host);
    panels::FormProgress progress(desktop);
    const auto suite = libreoffice::LibreOfficeSuite::attachToRunning();
    session::OfficeSession session(*suite, host, notices, progress);
    Windows windows(desktop, session);
    try {
        return session::Main(session, commandLine, windows.handlers());
    } catch (const office::Failure& failure) {
        // Whoever starts the program with a click sees no terminal.
        desktop.messageBox(unhandledFailureReport(failure), "Murvane");
        throw;
    }
}

}  // namespace apps

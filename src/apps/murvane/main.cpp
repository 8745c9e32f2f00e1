#include <fmt/format.h>

#include <exception>
#include <string>
#include <string_view>

#include "apps/end_of_process.h"
#include "apps/selection_commands.h"
#include "apps/suite_source.h"
#include "apps/terminal.h"
#include "apps/this_machine.h"
#include "apps/version.h"
#include "catalogue/inventory.h"
#include "office/failure.h"
#include "office/text.h"
#include "session/launcher.h"

#ifdef MURVANE_HAS_WINDOWS
#include "apps/murvane/windowed_run.h"
#endif

namespace {

constexpr std::string_view help =
    R"(Murvane takes the charts and named ranges of the workbook that is open in your LibreOffice
to slides, documents, pages and pictures.

  murvane /112    opens the main form
  murvane /212    puts what is selected on the slide on show, as a picture
  murvane /312    as a chart or a table
  murvane /3122   as an embedded workbook
  murvane /412    as a link to the workbook's file
  murvane /512    puts it into the open document, as a picture
  murvane /612    as an embedded workbook
  murvane /712    as a link to the workbook's file
  murvane /812    cells as a table
  murvane /111    saves it as a picture
  murvane /006    keeps in the workbook where pictures are to stand on slides
  murvane /001    opens the documentation
  murvane /004    tells the version

murvane-export does the same work unattended: see murvane-export --help.
)";

/// The command line as one text, as the launcher reads it.
std::string commandLineOf(int count, char** words) {
    std::string line;
    for (int i = 1; i < count; ++i) {
        if (i > 1) line += ' ';
        line += words[i];
    }
    return line;
}

int runInTerminal(const std::string& commandLine, apps::Console& console,
                  const apps::SuiteSource& suites) {
    apps::MachineHost host(console);
    apps::StatusLine line(console, true);
    apps::TerminalNotices notices(
        console, line, console.canAsk() ? apps::Answering::AsksUser : apps::Answering::Refuses);
    apps::TerminalProgress progress(line);
    const auto suite = suites.attachToRunning();
    session::OfficeSession session(*suite, host, notices, progress);

    session::CommandHandlers handlers = apps::selectionHandlers(session);
    handlers.CountWorkbookItems = [&] { catalogue::CountWorkbookItems(session); };
    return session::Main(session, commandLine, handlers);
}

/// With a screen the program shows windows; without one it says what it has to say in the terminal.
int runCommand(int count, char** words, const std::string& commandLine, apps::Console& console) {
    const apps::SuiteSource suites = apps::suitesOfThisMachine();
#ifdef MURVANE_HAS_WINDOWS
    if (apps::canShowWindows()) {
        return apps::runInWindows(count, words, commandLine, console, suites);
    }
#endif
    return runInTerminal(commandLine, console, suites);
}

constexpr int unhandled = 1;

int runOrReport(int count, char** words) {
    apps::MachineConsole console([] { return false; });
    const std::string commandLine = commandLineOf(count, words);
    const auto tell = [&](std::string_view text) {
        return console.writeOut(text) ? session::commandDone : unhandled;
    };
    if (commandLine == "--version") return tell(fmt::format("murvane {}\n", apps::version));
    if (commandLine == "--help" || commandLine == "-h") return tell(help);
    // Nothing to do, so nothing to attach to either.
    if (office::trim(commandLine).empty()) return session::commandDone;
    try {
        return runCommand(count, words, commandLine, console);
    } catch (const std::exception& failure) {
        console.writeError(apps::unhandledFailureReport(failure) + "\n");
    }
    return unhandled;
}

}  // namespace

int main(int count, char** words) {
    apps::openStandardStreams();
    apps::endProcess(runOrReport(count, words));
}

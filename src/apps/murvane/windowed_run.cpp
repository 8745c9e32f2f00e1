#include "apps/murvane/windowed_run.h"

#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "apps/claim.h"
#include "apps/interruption.h"
#include "apps/selection_commands.h"
#include "apps/terminal.h"
#include "apps/this_machine.h"
#include "apps/version.h"
#include "catalogue/inventory.h"
#include "catalogue/userform_obj.h"
#include "desktop/desktop_application.h"
#include "desktop/forms_runner.h"
#include "destinations/html_dialog.h"
#include "destinations/image_dialog.h"
#include "destinations/pdf_dialog.h"
#include "destinations/word_dialog.h"
#include "office/at_end.h"
#include "panels/about_form.h"
#include "panels/form_progress.h"
#include "panels/help.h"
#include "panels/notices.h"
#include "powerpoint/formats.h"
#include "powerpoint/layout_form.h"
#include "powerpoint/options_dialog.h"
#include "session/launcher.h"

namespace apps {

namespace {

/// The machine of a program that may have windows: its boxes come from a desktop.
class BoxesHost : public MachineHost {
public:
    BoxesHost(Console& console, DesktopSource desktop)
        : MachineHost(console),
          desktop_(std::move(desktop)) {}

    void messageBox(std::string_view text, std::string_view title) override {
        desktop_().messageBox(text, title);
    }
    [[nodiscard]] std::optional<bool> ask(std::string_view text, std::string_view title) override {
        return desktop_().ask(text, title);
    }
    [[nodiscard]] std::optional<std::string> chooseFolder(std::string_view title,
                                                          std::string_view start) override {
        return desktop_().chooseFolder(title, start);
    }

protected:
    [[nodiscard]] std::vector<std::string> ownVariables() const override {
        return desktop::variablesForToolkit();
    }

private:
    DesktopSource desktop_;
};

/// One whose windows are there: events come from them too.
class DesktopHost : public BoxesHost {
public:
    DesktopHost(Console& console, forms::Desktop& desktop)
        : BoxesHost(console, [&desktop]() -> forms::Desktop& { return desktop; }),
          desktop_(desktop) {}

    void letEventsRun() override { desktop_.letEventsRun(); }

private:
    forms::Desktop& desktop_;
};

/// Notices of a command that shows none as a rule: starting the windows takes longer than the
/// command.
class LateNotices : public session::NoticePresenter {
public:
    LateNotices(DesktopSource desktop, Console& console)
        : desktop_(std::move(desktop)),
          console_(console) {}

    int show(const session::Notice& notice) override {
        DesktopHost host(console_, desktop_());
        const panels::Help help(desktop_(), host);
        return panels::NoticePanel(desktop_(), host).show(notice);
    }

private:
    DesktopSource desktop_;
    Console& console_;
};

/// The forms of the program, and what leads from one to the other.
class Windows {
public:
    Windows(forms::Desktop& desktop, session::OfficeSession& session)
        : desktop_(desktop),
          session_(session),
          help_(desktop, session.host) {}

    /// What the commands run that opens windows.
    [[nodiscard]] session::CommandHandlers handlers();

private:
    void showMainForm();
    void startExport(catalogue::ExportList& list, const catalogue::ExportChoices& choices);

    forms::Desktop& desktop_;
    session::OfficeSession& session_;
    panels::Help help_;
    std::unique_ptr<catalogue::UserformObj> mainForm_;
};

session::CommandHandlers Windows::handlers() {
    session::CommandHandlers handlers;
    handlers.CountWorkbookItems = [this] { catalogue::CountWorkbookItems(session_); };
    handlers.ShowAboutForm = [this] { panels::ShowAboutForm(session_, desktop_, version); };
    handlers.ShowLayoutUtility = [this] { powerpoint::ShowLayoutUtility(session_, desktop_); };
    handlers.ShowMainForm = [this] { showMainForm(); };
    handlers.UnloadAllForms = [this] { desktop_.unloadAll(); };
    return handlers;
}

void Windows::startExport(catalogue::ExportList& list, const catalogue::ExportChoices& choices) {
    switch (choices.destination) {
        case catalogue::Destination::PowerPoint:
            return powerpoint::StartPowerPointExport(session_, desktop_, list, choices);
        case catalogue::Destination::Word:
            return destinations::StartWordExport(session_, desktop_, list, choices);
        case catalogue::Destination::Pdf:
            return destinations::StartPdfExport(session_, desktop_, list, choices);
        case catalogue::Destination::Html:
            return destinations::StartHtmlExport(session_, desktop_, list, choices);
        case catalogue::Destination::ImageFiles:
            return destinations::StartImageExport(session_, desktop_, list, choices);
    }
}

void Windows::showMainForm() {
    if (!claim(session_.ActiveBook.get("Identity").toText())) {
        session::ShowWarningNotice(session_.notices,
                                   "The main form is open for this workbook already.\r"
                                   "Go on there, or close it first.");
        return;
    }
    catalogue::MainFormHooks hooks;
    hooks.StartExport = [this](auto& list, const auto& choices) { startExport(list, choices); };
    hooks.InsertOneItem = [this](const catalogue::ExportItem& row,
                                 const catalogue::ExportChoices& choices) {
        return powerpoint::InsertOneItem(session_, row, choices);
    };
    hooks.ShowHelp = [this](std::string_view file) { help_.ShowHelp(file); };
    hooks.ShowContextHelp = [this](const forms::Control& control) {
        help_.ShowContextHelp(control);
    };
    mainForm_ = std::make_unique<catalogue::UserformObj>(desktop_, session_, std::move(hooks));
    desktop_.show(*mainForm_, forms::ShowMode::Modeless);
    while (desktop_.isLoaded(*mainForm_)) desktop_.waitForEvents();
}

int pasteSelection(const DesktopSource& desktop, const std::string& commandLine, Console& console,
                   const SuiteSource& suites) {
    LateNotices notices(desktop, console);
    BoxesHost host(console, desktop);
    StatusLine line(console, false);
    TerminalProgress progress(line);
    const auto suite = suites.attachToRunning();
    session::OfficeSession session(*suite, host, notices, progress);
    try {
        return session::Main(session, commandLine, selectionHandlers(session));
    } catch (const std::exception& failure) {
        desktop().messageBox(unhandledFailureReport(failure), "Murvane");
        throw;
    }
}

int runWithForms(forms::Desktop& desktop, const std::string& commandLine, Console& console,
                 const SuiteSource& suites) {
    DesktopHost host(console, desktop);
    panels::NoticePanel notices(desktop, host);
    panels::FormProgress progress(desktop);
    const auto suite = suites.attachToRunning();
    session::OfficeSession session(*suite, host, notices, progress);
    Windows windows(desktop, session);
    try {
        return session::Main(session, commandLine, windows.handlers());
    } catch (const std::exception& failure) {
        // The workbook that the main form keeps its list in may have gone too.
        office::asFarAsPossible([&] { desktop.unloadAll(); });
        // Whoever starts the program with a click sees no terminal.
        desktop.messageBox(unhandledFailureReport(failure), "Murvane");
        throw;
    }
}

}  // namespace

bool canShowWindows() {
    return desktop::screenAnswers();
}

int runInWindows(int count, char** words, const std::string& commandLine, Console& console,
                 const SuiteSource& suites) {
    std::optional<desktop::FormsRunner> runner;
    std::optional<Interruption> interruption;
    const auto desktop = [&]() -> forms::Desktop& {
        if (!runner) {
            interruption.emplace();
            runner.emplace(count, words);
            // The main form keeps its list in the workbook when it is unloaded.
            interruption->onceHappened([&] { runner->closeForms(); });
        }
        return runner->desktop();
    };
    return runCommandOn(desktop, commandLine, console, suites);
}

int runCommandOn(const DesktopSource& desktop, const std::string& commandLine, Console& console,
                 const SuiteSource& suites) {
    if (session::worksOnTheSelection(commandLine))
        return pasteSelection(desktop, commandLine, console, suites);
    return runWithForms(desktop(), commandLine, console, suites);
}

}  // namespace apps

#include "session/launcher.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <optional>
#include <string>

#include "office/failure_patterns.h"
#include "office/text.h"
#include "session/store_sheet.h"
#include "session/web_pages.h"
#include "session/workbook_prompt.h"

namespace session {

namespace {

/// Nothing running is no failure, and leaves Excel and PowerPoint empty. Returns why a running
/// Excel or its workbook could not be had, if that is so.
std::optional<office::Failure> attachApplications(OfficeSession& session) {
    office::ContinueOnFailure needed;
    office::ContinueOnFailure scope;
    needed.attempt([&] { session.ExcelApp = session.suite.attach("Excel.Application"); });
    scope.attempt([&] { session.PowerPointApp = session.suite.attach("PowerPoint.Application"); });
    if (session.ExcelApp) {
        needed.attempt(
            [&] { session.ActiveBook = session.ExcelApp.get("ActiveWorkbook").toObject(); });
        if (session.ActiveBook) {
            scope.attempt([&] {
                session.ActiveSheetName =
                    session.ActiveBook.get("ActiveSheet").get("Name").toText();
            });
        }
    }
    if (session.PowerPointApp) {
        scope.attempt([&] {
            session.SessionPresentation =
                session.PowerPointApp.get("ActivePresentation").toObject();
        });
    }
    return needed.lastFailure();
}

int refuse(OfficeSession& session, std::string_view why) {
    ShowWarningNotice(session.notices, why);
    return commandFailed;
}

int reportNoWindows(OfficeSession& session, std::string_view command) {
    return refuse(session, fmt::format("The command {} opens a window, and there is no screen to "
                                       "show it on.",
                                       command));
}

/// Runs a command that opens a window. Without a screen it has no handler.
int show(OfficeSession& session, std::string_view command, const std::function<void()>& handler) {
    if (!handler) return reportNoWindows(session, command);
    handler();
    return commandDone;
}

/// The code has no form to show, and is there to fail like this.
void showUnassignedForm() {
    const office::Object neverAssigned;
    neverAssigned.call("Show");
}

/// The commands that need no application, or ask for it themselves. Nothing if `command` is none of
/// them.
std::optional<int> runFreeCommand(OfficeSession& session, std::string_view command,
                                  const CommandHandlers& handlers,
                                  const std::optional<office::Failure>& refusal) {
    if (command == "/922") {
        showUnassignedForm();
    } else if (command == "/001") {
        OpenDocOverview(session);
    } else if (command == "/002") {
        OpenDocFaq(session);
    } else if (command == "/003") {
        OpenContactPage(session);
    } else if (command == "/004") {
        return show(session, command, handlers.ShowAboutForm);
    } else if (command == "/006") {
        if (refusal && session.ActiveBook.isNothing()) {
            return refuse(session, refusal->description());
        }
        return show(session, command, handlers.ShowLayoutUtility);
    } else {
        return std::nullopt;
    }
    return commandDone;
}

void offerToOpenWorkbook(OfficeSession& session) {
    const int reply = ShowConfirmNotice(session.notices,
                                        "Murvane didn't found an open Excel file \r\r"
                                        "Would you want to open one?",
                                        "Murvane");
    if (reply != answer::ok) return;
    OpenWorkbookPrompt(session);
    session.ActiveBook = session.ExcelApp.get("ActiveWorkbook").toObject();
}

/// `/112`. After the prompt for a workbook the command ends: it is for the user to start it again.
int runMainForm(OfficeSession& session, const CommandHandlers& handlers) {
    if (session.ActiveBook.isNothing()) {
        offerToOpenWorkbook(session);
    } else if (session.ItemCount != 0) {
        session.host.letEventsRun();
        return OpenMainForm(session, handlers);
    } else {
        ShowInfoNotice(
            session.notices,
            "Murvane didn't find any chart ot named range to paste from the current "
            "workbook!\r\rPlease open another workbook or create at least one chart or named "
            "range in the current one in order to open Murvane main form in batch mode");
    }
    return commandDone;
}

/// Whether the selection has a cell under a chart of the active sheet. False where that can't be
/// told: another selection than a range, a chart sheet.
bool selectionTouchesEmbeddedChart(OfficeSession& session) {
    office::ContinueOnFailure scope;
    const office::Object& excel = session.ExcelApp;
    office::Object charts;
    std::int32_t count = 0;
    scope.attempt([&] {
        charts = excel.get("ActiveSheet").get("ChartObjects").toObject();
        count = charts.get("Count").toLong();
    });
    for (std::int32_t i = 1; i <= count; ++i) {
        bool meets = false;
        scope.attempt([&] {
            const office::Value chart = charts.get("Item", i);
            const office::Value under =
                excel.get("Range", chart.get("TopLeftCell"), chart.get("BottomRightCell"));
            // Ranges of different sheets fail, and so have no cell in common either.
            meets = !excel.call("Intersect", excel.get("Selection"), under).toObject().isNothing();
        });
        if (meets) return true;
    }
    return false;
}

/// `/3122`. An embedded object of cells would bring along the charts that lie on them.
void pasteAsEmbeddedObject(OfficeSession& session, const CommandHandlers& handlers) {
    if (selectionTouchesEmbeddedChart(session)) {
        ShowWarningNotice(
            session.notices,
            "The specified range contains embedded charts. Please export in another format.");
        return;
    }
    handlers.PasteSelectionToSlide(SlidePaste::EmbeddedObject);
}

struct SelectionCommand {
    std::string_view code;
    void (*run)(OfficeSession& session, const CommandHandlers& handlers);
};

template <SlidePaste mode>
void pasteToSlide(OfficeSession&, const CommandHandlers& handlers) {
    handlers.PasteSelectionToSlide(mode);
}

template <WordPaste mode>
void pasteToWord(OfficeSession&, const CommandHandlers& handlers) {
    handlers.PasteSelectionToWord(mode);
}

void saveAsImage(OfficeSession&, const CommandHandlers& handlers) {
    handlers.SaveSelectionAsImage();
}

constexpr std::array<SelectionCommand, 9> selectionCommands = {{
    {"/111", saveAsImage},
    {"/212", pasteToSlide<SlidePaste::Pictures>},
    {"/312", pasteToSlide<SlidePaste::SourceFormatting>},
    {"/3122", pasteAsEmbeddedObject},
    {"/412", pasteToSlide<SlidePaste::LinkedObject>},
    {"/512", pasteToWord<WordPaste::Picture>},
    {"/612", pasteToWord<WordPaste::InlineEmbedded>},
    {"/712", pasteToWord<WordPaste::FloatingLinked>},
    {"/812", pasteToWord<WordPaste::Table>},
}};

/// Null if the command is none of them.
const SelectionCommand* selectionCommandOf(std::string_view command) {
    const auto* const found =
        std::find_if(selectionCommands.begin(), selectionCommands.end(),
                     [&](const SelectionCommand& known) { return known.code == command; });
    return found == selectionCommands.end() ? nullptr : found;
}

int runCommand(OfficeSession& session, std::string_view command, const CommandHandlers& handlers,
               const std::optional<office::Failure>& refusal) {
    if (const auto status = runFreeCommand(session, command, handlers, refusal)) return *status;
    if (refusal && session.ActiveBook.isNothing()) return refuse(session, refusal->description());
    if (session.ExcelApp.isNothing()) return commandDone;
    if (command == mainFormCode) {
        session.ItemCount = 0;
        if (session.ActiveBook) handlers.CountWorkbookItems();
        return runMainForm(session, handlers);
    }
    const SelectionCommand* known = selectionCommandOf(command);
    if (session.ActiveBook && known != nullptr) known->run(session, handlers);
    return commandDone;
}

}  // namespace

bool worksOnTheSelection(std::string_view commandLine) {
    return selectionCommandOf(office::trim(commandLine)) != nullptr;
}

int Main(OfficeSession& session, std::string_view commandLine, const CommandHandlers& handlers) {
    const std::string_view command = office::trim(commandLine);
    int status = commandDone;
    if (!command.empty()) {
        const auto refusal = attachApplications(session);
        status = runCommand(session, command, handlers, refusal);
    }
    CloseSession(session, handlers.UnloadAllForms);
    return status;
}

void CloseSession(OfficeSession& session, const std::function<void()>& unloadAllForms) {
    session.ActiveBook.release();
    session.SessionPresentation.release();
    session.SessionDocument.release();
    session.ExcelApp.release();
    session.PowerPointApp.release();
    session.WordApp.release();
    if (unloadAllForms) office::ContinueOnFailure().attempt(unloadAllForms);
}

int OpenMainForm(OfficeSession& session, const CommandHandlers& handlers) {
    if (!handlers.ShowMainForm) return reportNoWindows(session, mainFormCode);
    session.ExcelApp.put("ScreenUpdating", true);
    if (!CanKeepStore(session)) return commandDone;
    EnsureStoreSheet(session);
    session.host.letEventsRun();
    handlers.ShowMainForm();
    return commandDone;
}

}  // namespace session

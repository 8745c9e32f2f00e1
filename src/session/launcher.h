#pragma once

#include <functional>
#include <string_view>

#include "session/office_session.h"

namespace session {

/// How the selection gets onto a slide.
enum class SlidePaste { Pictures = 0, SourceFormatting = 1, EmbeddedObject = 2, LinkedObject = 3 };
/// How the selection gets into a Word document.
enum class WordPaste { Picture, InlineEmbedded, FloatingLinked, Table };

/// What the commands run that lives in higher layers. A run without a screen leaves out those that
/// show a form; the command then says so in a notice and fails.
struct CommandHandlers {
    /// Sets `ItemCount` from the active workbook.
    std::function<void()> CountWorkbookItems;
    std::function<void()> ShowAboutForm;
    std::function<void()> ShowLayoutUtility;
    /// Shows `UserformObj` modeless and returns when it has closed.
    std::function<void()> ShowMainForm;
    std::function<void(SlidePaste)> PasteSelectionToSlide;
    std::function<void(WordPaste)> PasteSelectionToWord;
    std::function<void()> SaveSelectionAsImage;
    std::function<void()> UnloadAllForms;
};

/// The command that opens the main form.
inline constexpr std::string_view mainFormCode = "/112";

/// Exit statuses of a command.
inline constexpr int commandDone = 0;
inline constexpr int commandFailed = 1;

/// Whether a command line asks for what is done to the selection at once: such a command shows no
/// window but a notice where something is wrong.
[[nodiscard]] bool worksOnTheSelection(std::string_view commandLine);

/// Carries out the one command that the command line names and leaves through `CloseSession`.
/// Returns the exit status: 0 also for an empty command line and for an unknown code, which end
/// without a word.
///
/// Plain code: a `Failure` that no handler keeps passes through, with nothing closed; the program
/// reports it and ends with another status.
int Main(OfficeSession& session, std::string_view commandLine, const CommandHandlers& handlers);

/// The single way out of a command: lets go of workbook, presentation and applications, and unloads
/// all forms, which live in higher layers. The applications keep running. Failures are passed over.
///
/// The process ends by `Main` returning to the program, which leaves with the exit status of the
/// command: an end from in here would skip the destructors that give back locks, files and
/// connections.
void CloseSession(OfficeSession& session, const std::function<void()>& unloadAllForms);

/// Shows the main form and returns when it has closed. A workbook that is read-only or can't take
/// the store sheet is refused with a notice.
int OpenMainForm(OfficeSession& session, const CommandHandlers& handlers);

}  // namespace session

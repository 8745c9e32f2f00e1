#include "panels/dialogs.h"

#include <string_view>

#include "office/failure_patterns.h"

namespace panels {

namespace {

constexpr std::string_view mainForm = "UserformObj";

}  // namespace

void ShowToolForm(forms::Form& tool) {
    forms::Desktop& desktop = tool.desktop();
    const bool hadMainForm = DropTopmost(desktop);
    desktop.show(tool, forms::ShowMode::Modal);
    if (hadMainForm) RaiseMainForm(desktop);
}

bool DropTopmost(forms::Desktop& desktop) {
    forms::Form* main = desktop.findLoaded(mainForm);
    if (main != nullptr) main->topmost = false;
    for (const char* dialog : {"DialogWord", "Dialog", "DialogHTML", "DialogImageFiles"}) {
        if (forms::Form* open = desktop.findLoaded(dialog)) open->topmost = false;
    }
    return main != nullptr;
}

void RaiseMainForm(forms::Desktop& desktop) {
    if (forms::Form* main = desktop.findLoaded(mainForm)) main->topmost = true;
}

void RunExport(session::OfficeSession& session, forms::Form& dialog, std::int32_t total,
               const std::function<void()>& batch) {
    forms::Desktop& desktop = dialog.desktop();
    desktop.unload(dialog);
    desktop.letEventsRun();
    if (forms::Form* main = desktop.findLoaded(mainForm)) main->takesInput = false;
    session.progress.showItem(0, total);
    batch();
    CloseAllAndEnd(session, desktop);
}

void CloseAllAndEnd(session::OfficeSession& session, forms::Desktop& desktop) {
    office::ContinueOnFailure scope;
    session.MainFormOpen = false;
    scope.attempt([&] { session.progress.unload(); });
    scope.attempt([&] {
        if (forms::Form* main = desktop.findLoaded(mainForm)) desktop.unload(*main);
    });
    scope.attempt([&] { desktop.unloadAll(); });
    session.SessionPresentation.release();
    session.SessionDocument.release();
    session.PowerPointApp.release();
    session.WordApp.release();
    session.ExcelApp.release();
}

}  // namespace panels

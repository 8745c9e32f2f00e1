#include "panels/dialogs.h"

#include <algorithm>
#include <string_view>

#include "office/failure_patterns.h"

namespace panels {

namespace {

constexpr std::string_view mainForm = "UserformObj";

}  // namespace

void ShowToolForm(forms::Form& tool) {
    const TopmostDropped dropped(tool.desktop());
    tool.desktop().show(tool, forms::ShowMode::Modal);
}

TopmostDropped::TopmostDropped(forms::Desktop& desktop) : desktop_(desktop) {
    for (forms::Form* form : desktop.loadedForms()) {
        if (form->topmost) dropped_.push_back(form);
        form->topmost = false;
    }
}

TopmostDropped::~TopmostDropped() {
    for (forms::Form* form : desktop_.loadedForms()) {
        if (std::find(dropped_.begin(), dropped_.end(), form) != dropped_.end())
            form->topmost = true;
    }
}

void RunExport(session::OfficeSession& session, forms::Form& dialog, std::int32_t total,
               const std::function<void()>& batch) {
    forms::Desktop& desktop = dialog.desktop();
    if (forms::Form* main = desktop.findLoaded(mainForm)) main->takesInput = false;
    desktop.unload(dialog);
    desktop.letEventsRun();
    session.progress.showItem(0, total);
    batch();
    CloseAllAndEnd(session, desktop);
}

void CloseAllAndEnd(session::OfficeSession& session, forms::Desktop& desktop) {
    office::ContinueOnFailure scope;
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

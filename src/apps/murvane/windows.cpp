#include "apps/murvane/windows.h"

#include "apps/version.h"
#include "catalogue/inventory.h"
#include "panels/about_form.h"
#include "powerpoint/layout_form.h"
#include "powerpoint/options_dialog.h"
#include "powerpoint/pictures.h"

namespace apps {

session::CommandHandlers Windows::handlers() {
    session::CommandHandlers handlers;
    handlers.CountWorkbookItems = [this] { catalogue::CountWorkbookItems(session_); };
    handlers.ShowAboutForm = [this] { panels::ShowAboutForm(session_, desktop_, version); };
    handlers.ShowLayoutUtility = [this] { powerpoint::ShowLayoutUtility(session_, desktop_); };
    handlers.ShowMainForm = [this] { showMainForm(); };
    handlers.UnloadAllForms = [this] { desktop_.unloadAll(); };
    return handlers;
}

void Windows::showMainForm() {
    catalogue::MainFormHooks hooks;
    hooks.StartExport = [this](catalogue::ExportList& list,
                               const catalogue::ExportChoices& choices) {
        if (choices.destination != catalogue::Destination::PowerPoint) return false;
        powerpoint::StartPowerPointExport(session_, desktop_, list, choices);
        return true;
    };
    hooks.InsertOneItem = [this](const catalogue::ExportItem& row,
                                 const catalogue::ExportChoices& choices) {
        return powerpoint::InsertOneItem(session_, row, choices);
    };
    mainForm_ = std::make_unique<catalogue::UserformObj>(desktop_, session_, std::move(hooks));
    desktop_.show(*mainForm_, forms::ShowMode::Modeless);
    // Not by `MainFormOpen`: the form may be closed while a dialog above it is up.
    while (desktop_.isLoaded(*mainForm_)) desktop_.waitForEvents();
    session_.MainFormOpen = false;
}

}  // namespace apps

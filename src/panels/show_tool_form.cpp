#include "panels/show_tool_form.h"

#include <string_view>

namespace panels {

namespace {

constexpr std::string_view mainForm = "UserformObj";

}  // namespace

void ShowOptionsDialog(forms::Form& dialog) {
    ShowToolForm(dialog);
}

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

session::FormHooks formHooks(forms::Desktop& desktop) {
    session::FormHooks hooks;
    hooks.UnloadForm = [&desktop](std::string_view name) {
        if (forms::Form* form = desktop.findLoaded(name)) desktop.unload(*form);
    };
    hooks.UnloadAllForms = [&desktop] { desktop.unloadAll(); };
    return hooks;
}

}  // namespace panels

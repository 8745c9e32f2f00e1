#pragma once

#include "forms/desktop.h"
#include "forms/form.h"
#include "session/closing.h"

/// Which window stands above which. The main form is topmost, and so is whatever is shown above it.
namespace panels {

/// Shows an options dialog modally above the main form: the one way to open one.
void ShowOptionsDialog(forms::Form& dialog);
/// The same for a tool form.
void ShowToolForm(forms::Form& tool);

/// Takes the topmost mark off the main form and the open options dialogs. True if there is a main
/// form that can get it back.
bool DropTopmost(forms::Desktop& desktop);
/// Gives the main form its topmost mark back, if it is still loaded.
void RaiseMainForm(forms::Desktop& desktop);

/// How the lower layers get rid of the forms of a desktop.
[[nodiscard]] session::FormHooks formHooks(forms::Desktop& desktop);

}  // namespace panels

#pragma once

#include <functional>
#include <vector>

#include "forms/desktop.h"
#include "forms/form.h"
#include "session/office_session.h"

/// How options dialogs and tool forms come up above the main form, and how an export ends them.
namespace panels {

/// Shows a dialog or a tool form modally above the main form: the one way to open one. The main
/// form and the dialogs that are open are topmost, and would otherwise cover it.
void ShowToolForm(forms::Form& tool);

/// Takes the topmost mark off all forms, so that another one can stand above them. Those that had
/// it and are still loaded get it back in the end, and no others: raised in a batch, the main form
/// would cover the progress and its Cancel.
class TopmostDropped {
public:
    explicit TopmostDropped(forms::Desktop& desktop);
    TopmostDropped(const TopmostDropped&) = delete;
    TopmostDropped& operator=(const TopmostDropped&) = delete;
    ~TopmostDropped();

private:
    forms::Desktop& desktop_;
    std::vector<forms::Form*> dropped_;
};

/// What the button of an options dialog leads to: the dialog gives way to the progress form with
/// its `total` of items, `batch` runs, and the session ends by `CloseAllAndEnd`. The main form
/// takes no input meanwhile: the batch reads its rows while it lets events run. Failures of the
/// batch go to the caller.
void RunExport(session::OfficeSession& session, forms::Form& dialog, std::int32_t total,
               const std::function<void()>& batch);

/// The end after an export: unloads the main form, which saves its list, then all others, by which
/// the program ends, and lets go of presentation and applications. Failures are passed over.
void CloseAllAndEnd(session::OfficeSession& session, forms::Desktop& desktop);

}  // namespace panels

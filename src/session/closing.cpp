#include "session/closing.h"

#include "office/failure_patterns.h"

namespace session {

namespace {

void clearOpenForms(OfficeSession& session) {
    session.MainFormOpen = false;
    session.PowerPointDialogOpen = false;
    session.WordDialogOpen = false;
    session.HtmlDialogOpen = false;
    session.ImageDialogOpen = false;
}

void unload(office::ContinueOnFailure& scope, const FormHooks& forms, std::string_view formName) {
    if (forms.UnloadForm) scope.attempt([&] { forms.UnloadForm(formName); });
}

void unloadAll(office::ContinueOnFailure& scope, const FormHooks& forms) {
    if (forms.UnloadAllForms) scope.attempt([&] { forms.UnloadAllForms(); });
}

}  // namespace

void CloseSession(OfficeSession& session, const FormHooks& forms) {
    office::ContinueOnFailure scope;
    clearOpenForms(session);
    session.ActiveBook.release();
    session.SessionPresentation.release();
    session.ExcelApp.release();
    session.PowerPointApp.release();
    unloadAll(scope, forms);
}

void CloseAllAndEnd(OfficeSession& session, const FormHooks& forms) {
    office::ContinueOnFailure scope;
    clearOpenForms(session);
    scope.attempt([&] { session.progress.unload(); });
    session.ClosingMainForm = true;
    unload(scope, forms, "UserformObj");
    session.ClosingMainForm = false;
    for (const char* form : {"Dialog", "DialogWord", "DialogPDF", "DialogHTML", "DialogImageFiles",
                             "MurvaneNotice", "HepPopup"}) {
        unload(scope, forms, form);
    }
    session.SessionPresentation.release();
    session.PowerPointApp.release();
    session.ExcelApp.release();
    unloadAll(scope, forms);
}

}  // namespace session

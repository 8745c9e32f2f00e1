#include "session/closing.h"

#include "office/failure_patterns.h"

namespace session {

void CloseSession(OfficeSession& session, const std::function<void()>& unloadAllForms) {
    session.MainFormOpen = false;
    session.ActiveBook.release();
    session.SessionPresentation.release();
    session.ExcelApp.release();
    session.PowerPointApp.release();
    if (unloadAllForms) office::ContinueOnFailure().attempt(unloadAllForms);
}

}  // namespace session

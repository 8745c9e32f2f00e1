#pragma once

#include "session/closing.h"
#include "session/office_session.h"

namespace powerpoint {

/// One item further: counts it and moves the progress form, which shows from the first step on. The
/// options dialogs are unloaded unless `ExportKeepsDialogs` says otherwise.
void ProgressStep(session::OfficeSession& session, const session::FormHooks& forms);

/// Fills the progress form up, if there was anything to do.
void ProgressFinish(session::OfficeSession& session);

/// Lets both applications draw again, failures ignored, and lets events run.
void RestoreScreenUpdating(session::OfficeSession& session);

}  // namespace powerpoint

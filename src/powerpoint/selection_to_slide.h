#pragma once

#include "session/launcher.h"
#include "session/office_session.h"

/// What is selected in Excel goes onto the slide on show in PowerPoint, at once and without a form.
namespace powerpoint {

/// The whole command. Selections other than a chart or cells are passed over without a word, and
/// several areas and a presentation opened for reading only get a notice. A paste that fails is a
/// failure but for pictures, which have their own notice or none. What arrives gets the chart's
/// name, or the sheet's and the cells', as alternative text. PowerPoint's view is put back, and
/// Excel's window is made large.
void PasteSelectionToSlide(session::OfficeSession& session, session::SlidePaste mode);

}  // namespace powerpoint

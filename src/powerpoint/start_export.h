#pragma once

#include "catalogue/export_list.h"
#include "session/office_session.h"

namespace powerpoint {

/// Begins an export to new slides: Excel asks nothing from here on, and the checked rows are
/// counted into `CheckedCount`. The caller goes on with the options of the export.
void StartPowerPointExport(session::OfficeSession& session, const catalogue::ExportList& list);

/// Begins an export to the slides that the rows name: counts the checked rows with a slide number
/// into `CheckedCount`. The count ends at the first number beyond the presentation, and nothing is
/// said about it: refusing it is the review's business. Failures go to the caller.
void CountRowsWithSlideNumber(session::OfficeSession& session, const catalogue::ExportList& list);

}  // namespace powerpoint

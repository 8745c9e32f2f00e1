#pragma once

#include "apps/murvane_export/options.h"
#include "catalogue/export_list.h"
#include "session/office_session.h"

namespace unattended {

/// Puts the placement of the options into the store of the active workbook, where the export looks
/// for it. What the options leave out keeps what the workbook has.
void storePlacement(session::OfficeSession& session, const Options& options);

/// Exports the checked rows to the session's presentation, as the options dialog and its button do.
/// Failures go to the caller. The row that it stopped at is the list's selected one.
void exportToSlides(session::OfficeSession& session, catalogue::ExportList& list,
                    const catalogue::ExportChoices& choices, const Options& options);

}  // namespace unattended

#pragma once

#include "catalogue/export_choices.h"
#include "session/office_session.h"

/// The editable route: PowerPoint's default paste, by which a chart arrives as a chart of its own
/// and a range as a table.
namespace powerpoint {

/// Puts one row's object on a slide of the session's presentation. False if there is none: a notice
/// has then said so. A chart on a worksheet that is gone is a failure.
bool PasteRowEditable(session::OfficeSession& session, const catalogue::ExportItem& row,
                      const office::Object& slide);

}  // namespace powerpoint

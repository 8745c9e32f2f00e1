#pragma once

#include "catalogue/export_choices.h"
#include "session/office_session.h"

/// The linked route: an object that keeps a reference to the workbook's file and can be updated
/// when that changes.
namespace powerpoint {

/// Puts one row's object on a slide of the session's presentation. Whether it is there; if not, a
/// notice has said why.
bool PasteRowAsLink(session::OfficeSession& session, const catalogue::ExportItem& row,
                    const office::Object& slide);

}  // namespace powerpoint

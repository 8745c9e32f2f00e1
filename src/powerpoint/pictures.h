#pragma once

#include "catalogue/export_choices.h"
#include "session/office_session.h"

/// The picture route: each object is exported by Excel to a file in the temporary folder,
/// inserted into the session's presentation, and the file is deleted.
namespace powerpoint {

/// Puts one row's object on a slide of the session's presentation. The picture's alternative text
/// is the row's caption, or the object's own name where that is empty. False if the row leads to no
/// range: a notice has then said so. Failures go to the caller.
///
/// The file of a chart sheet's picture stays, and the next chart sheet's overwrites it.
bool InsertPicture(session::OfficeSession& session, const catalogue::ExportItem& row,
                   const office::Object& slide);

}  // namespace powerpoint

#pragma once

#include <string>
#include <vector>

#include "catalogue/export_choices.h"
#include "session/office_session.h"

/// The embedded route: an Excel object with a copy of the data, which opens from inside the
/// presentation.
namespace powerpoint {

/// What the suite says of a presentation with one more embedded workbook and does not say of it as
/// it is: it is to be told once, by the one that makes the difference.
[[nodiscard]] std::vector<std::string> remarksOnOneMore(session::OfficeSession& session);

/// Puts one row's object on a slide of the session's presentation. Whether it is there; if not, a
/// notice has said why.
bool PasteRowAsExcelObject(session::OfficeSession& session, const catalogue::ExportItem& row,
                           const office::Object& slide);

}  // namespace powerpoint

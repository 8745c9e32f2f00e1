#pragma once

#include <string>

#include "catalogue/export_list.h"
#include "session/office_session.h"

namespace catalogue {

/// What keeps an export to slides from running: PowerPoint, its presentation and, where slides are
/// predefined, the slide numbers of the rows on visible sheets.
void reviewPowerPoint(session::OfficeSession& session, const ExportList& list,
                      const ExportChoices& choices, std::string& blockers);

/// What keeps an export to Word from running: Word and its document.
void reviewWord(session::OfficeSession& session, std::string& blockers);

}  // namespace catalogue

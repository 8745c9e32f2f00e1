#pragma once

#include <string>
#include <vector>

#include "catalogue/export_choices.h"
#include "catalogue/review.h"
#include "catalogue/row_objects.h"
#include "session/office_session.h"

/// What a review finds in the applications that the items go to.
namespace catalogue {

/// Each line once.
void AddReviewItem(std::vector<std::string>& reviewItems, std::string line);

/// What keeps an export to slides from running: PowerPoint, its presentation and, where slides are
/// predefined, the slide numbers of the rows on visible sheets.
void reviewPowerPoint(session::OfficeSession& session, const ExportList& list, RowObjects& objects,
                      const ExportChoices& choices, std::vector<std::string>& blockers);

/// What keeps an export to Word from running: Word and its document.
void reviewWord(session::OfficeSession& session, std::vector<std::string>& blockers);

/// What the chosen format can't do for the items that it will be asked for.
void reviewFormat(session::OfficeSession& session, const std::vector<office::PasteItem>& items,
                  const ExportChoices& choices, ReviewTexts& texts);

}  // namespace catalogue

#pragma once

#include <vector>

#include "catalogue/review.h"
#include "office/suite.h"

namespace catalogue {

/// What cannot be seen of the cells of items wherever they go: sparklines, and letters that are too
/// small once a range has come down to the size of its slide or page. And what pictures of them may
/// have wrong, and what tables of them leave out.
void reviewLooks(session::OfficeSession& session, const std::vector<office::PasteItem>& items,
                 const std::vector<ExportChoices>& exports, ReviewTexts& texts);

}  // namespace catalogue

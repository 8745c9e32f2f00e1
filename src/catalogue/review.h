#pragma once

#include <string>
#include <vector>

#include "catalogue/export_choices.h"
#include "session/office_session.h"

namespace catalogue {

/// What a review has found.
struct ReviewTexts {
    /// Each keeps the export from running.
    std::vector<std::string> Blockers;
    /// What the user may overrule.
    std::vector<std::string> ReviewItems;
};

/// Looks at the rows and at the application of each destination, and tells nobody. What is found
/// for several destinations is said once. Changes nothing but the session's PowerPoint reference,
/// which is taken anew.
[[nodiscard]] ReviewTexts reviewExport(session::OfficeSession& session, const ExportList& list,
                                       const std::vector<ExportChoices>& exports);

enum class ReviewResult { Go, Blocked, Cancelled };

/// The review ahead of one or several exports: blockers are shown and end it, review items ask
/// whether to go on, all at once.
ReviewResult PreExportReview(session::OfficeSession& session, const ExportList& list,
                             const std::vector<ExportChoices>& exports);

}  // namespace catalogue

#include "powerpoint/formats.h"

#include <array>

#include "office/failure_patterns.h"
#include "powerpoint/editable.h"
#include "powerpoint/excel_objects.h"
#include "powerpoint/linked_objects.h"
#include "powerpoint/pictures.h"
#include "session/powerpoint_session.h"

namespace powerpoint {

namespace {

using session::OfficeSession;

struct Format {
    std::int32_t (*exportRows)(Batch& batch);
    /// By the row's kind.
    bool (*insertRow)(OfficeSession& session, const catalogue::ExportItem& row,
                      const office::Object& slide);
};

const Format& formatOf(const catalogue::ExportChoices& choices) {
    static constexpr std::array<Format, 4> formats = {{
        {ExportRowsAsPictures, InsertPicture},
        {ExportRowsAsEditable, PasteRowEditable},
        {ExportRowsAsExcelObjects, PasteRowAsExcelObject},
        {ExportRowsAsLinkedObjects, PasteRowAsLink},
    }};
    return formats.at(static_cast<std::size_t>(choices.format));
}

}  // namespace

std::int32_t ExportRows(Batch& batch) {
    return formatOf(batch.choices).exportRows(batch);
}

bool InsertOneItem(OfficeSession& session, const catalogue::ExportItem& row,
                   const catalogue::ExportChoices& choices) {
    office::ContinueOnFailure scope;
    office::Object slide;
    const bool slideIsShown = scope.attempt([&] {
        const office::Object& app = session.PowerPointApp;
        session.SessionPresentation = app.get("ActivePresentation").toObject();
        slide = app.get("ActiveWindow").get("View").get("Slide").toObject();
    });
    if (!slideIsShown) {
        session::ShowWarningNotice(
            session.notices,
            "No PowerPoint presentation is open. Open or create a presentation, then try again.");
        return false;
    }
    scope.attempt([&] { session::SetExcelWindow(session, session::ExcelWindow::Normal); });
    bool isThere = false;
    if (!scope.attempt([&] { isThere = formatOf(choices).insertRow(session, row, slide); })) {
        session::ShowWarningNotice(session.notices, scope.lastFailure()->description());
    }
    return isThere;
}

}  // namespace powerpoint

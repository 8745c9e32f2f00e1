#include "powerpoint/formats.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "office/failure_patterns.h"
#include "powerpoint/editable.h"
#include "powerpoint/excel_objects.h"
#include "powerpoint/linked_objects.h"
#include "powerpoint/pictures.h"
#include "session/powerpoint_session.h"
#include "session/read_only.h"

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
    const auto tell = [&](std::string_view why) {
        session::ShowWarningNotice(session.notices, std::string(why));
        return false;
    };
    // One that was started while the form is up is another one.
    session::AttachPowerPoint(session);
    const office::Object& app = session.PowerPointApp;
    if (!scope.attempt(
            [&] { session.SessionPresentation = app.get("ActivePresentation").toObject(); })) {
        return tell(
            "No PowerPoint presentation is open. Open or create a presentation, then try again.");
    }
    if (session::refusesAsReadOnly(session, session.SessionPresentation, "presentation"))
        return false;
    office::Object slide;
    // Neither a master nor an empty presentation has one.
    if (!scope.attempt(
            [&] { slide = app.get("ActiveWindow").get("View").get("Slide").toObject(); })) {
        return tell(
            "No slide is in view. Add a slide, or show one in the normal view, then try again.");
    }
    scope.attempt([&] { session::SetExcelWindow(session, session::ExcelWindow::Normal); });
    std::vector<std::string> remarks;
    if (choices.format == catalogue::ExportFormat::Embedded) remarks = remarksOnOneMore(session);
    bool isThere = false;
    if (!scope.attempt([&] { isThere = formatOf(choices).insertRow(session, row, slide); })) {
        session::ShowWarningNotice(session.notices, scope.lastFailure()->description());
    }
    if (isThere) {
        for (const std::string& remark : remarks)
            session::ShowWarningNotice(session.notices, remark);
    }
    return isThere;
}

}  // namespace powerpoint

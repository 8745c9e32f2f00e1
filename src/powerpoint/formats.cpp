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

constexpr BatchRoute ExportRowsAsPictures{.insertItem = InsertPicture};
constexpr BatchRoute ExportRowsAsEditable{.insertItem = PasteRowEditable, .pastes = true};
constexpr BatchRoute ExportRowsAsExcelObjects{
    .insertItem = PasteRowAsExcelObject,
    .pastes = true,
    .ignoresSelection = true,
    .noneArrived =
        "No objects could be pasted as embedded Excel objects.\r\n\r\n"
        "Check that the selected sheets are visible and that PowerPoint can "
        "accept Excel objects from the clipboard."};
constexpr BatchRoute ExportRowsAsLinkedObjects{
    .insertItem = PasteRowAsLink, .pastes = true, .restoresExcel = false};

const BatchRoute& routeOf(const catalogue::ExportChoices& choices) {
    static constexpr std::array<BatchRoute, 4> routes = {ExportRowsAsPictures, ExportRowsAsEditable,
                                                         ExportRowsAsExcelObjects,
                                                         ExportRowsAsLinkedObjects};
    return routes.at(static_cast<std::size_t>(choices.format));
}

}  // namespace

std::int32_t ExportRows(Batch& batch) {
    return RunBatch(batch, routeOf(batch.choices));
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
    if (!scope.attempt([&] { isThere = routeOf(choices).insertItem(session, row, slide); })) {
        session::ShowWarningNotice(session.notices, scope.lastFailure()->description());
    }
    if (isThere) {
        for (const std::string& remark : remarks)
            session::ShowWarningNotice(session.notices, remark);
    }
    return isThere;
}

}  // namespace powerpoint

#include "powerpoint/pictures.h"

#include <fmt/format.h>

#include <string>

#include "catalogue/row_pictures.h"
#include "office/failure_patterns.h"
#include "powerpoint/pasted_shape.h"
#include "powerpoint/placement.h"
#include "session/powerpoint_session.h"

namespace powerpoint {

namespace {

using catalogue::ExportItem;
using office::Object;
using session::OfficeSession;

void insertPictureFile(OfficeSession& session, const ExportItem& row, const std::string& file,
                       const Object& slide) {
    constexpr std::int32_t noLink = 0;
    constexpr std::int32_t saveWithDocument = -1;
    constexpr std::int32_t naturalSize = -1;

    const Object picture =
        slide.get("Shapes")
            .call("AddPicture", file, noLink, saveWithDocument, 0, 0, naturalSize, naturalSize)
            .toObject();
    session.host.letEventsRun();
    FitPictureToSlide(picture, session.SessionPresentation);
    describeShape(picture, row);
}

}  // namespace

bool InsertPicture(OfficeSession& session, const ExportItem& row, const Object& slide) {
    const std::string file = catalogue::TemporaryPictureOf(session, row);
    if (!catalogue::ExportRowPicture(session, row, file)) {
        session::ShowWarningNotice(
            session.notices, fmt::format("? Named range '{}' not found or invalid.", row.name));
        return false;
    }
    insertPictureFile(session, row, file, slide);
    if (!row.isChartSheet()) {
        office::ContinueOnFailure().attempt([&] { session.host.deleteFile(file); });
    }
    return true;
}

}  // namespace powerpoint

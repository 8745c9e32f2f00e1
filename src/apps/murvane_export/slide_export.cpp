#include "apps/murvane_export/slide_export.h"

#include "powerpoint/pictures.h"
#include "powerpoint/start_export.h"
#include "session/powerpoint_session.h"
#include "session/workbook_store.h"

namespace unattended {

namespace {

office::Value cellValueOf(const PlacementValue& placement) {
    if (placement.share) return *placement.share;
    return "Default";
}

}  // namespace

void storePlacement(session::OfficeSession& session, const Options& options) {
    namespace store = session::store;
    const office::Object sheet =
        session.ActiveBook.get("Worksheets").get("Item", store::sheetName).toObject();
    const auto write = [&](std::size_t column, const std::optional<PlacementValue>& placement) {
        if (!placement) return;
        sheet.get("Cells", 1, static_cast<std::int32_t>(column))
            .put("Value", cellValueOf(*placement));
    };
    write(store::topColumn, options.top);
    write(store::widthColumn, options.width);
    write(store::leftColumn, options.left);
}

void exportToSlides(session::OfficeSession& session, catalogue::ExportList& list,
                    const catalogue::ExportChoices& choices, const Options& options) {
    session::AttachPowerPoint(session);
    if (choices.predefinedSlides) {
        powerpoint::CountRowsWithSlideNumber(session, list);
    } else {
        powerpoint::StartPowerPointExport(session, list);
    }
    session.slideTitle = options.titles;
    session.sourceInc = options.source;
    session.checkShadow = options.shadow;
    session.PictureStyle = options.pictureStyle;
    session.DefaultPlacement = !options.placesShapes();
    if (options.placesShapes()) storePlacement(session, options);
    powerpoint::ExportRowsAsPictures(session, list, choices);
}

}  // namespace unattended

#include "apps/murvane_export/slide_export.h"

#include "powerpoint/pictures.h"
#include "session/powerpoint_session.h"
#include "session/workbook_store.h"

namespace unattended {

void storePlacement(session::OfficeSession& session, const Options& options) {
    session::Placement placement = session::readStoredPlacement(session);
    const auto take = [](const std::optional<PlacementValue>& wanted, std::optional<double>& held) {
        if (wanted) held = wanted->share;
    };
    take(options.top, placement.top);
    take(options.width, placement.width);
    take(options.left, placement.left);
    session::writeStoredPlacement(session, placement);
}

void exportToSlides(session::OfficeSession& session, catalogue::ExportList& list,
                    const catalogue::ExportChoices& choices, const Options& options) {
    session::AttachPowerPoint(session);
    session.ExcelApp.put("DisplayAlerts", false);
    session.slideTitle = options.titles;
    session.sourceInc = options.source;
    session.checkShadow = options.shadow;
    session.PictureStyle = options.pictureStyle;
    session.DefaultPlacement = !options.placesShapes();
    if (options.placesShapes()) storePlacement(session, options);
    powerpoint::Batch batch{session, list, choices, {}};
    powerpoint::ExportRowsAsPictures(batch);
}

}  // namespace unattended

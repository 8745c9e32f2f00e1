#include "powerpoint/pictures.h"

#include <fmt/format.h>

#include <string>

#include "office/failure_patterns.h"
#include "powerpoint/batch_frame.h"
#include "powerpoint/placement.h"

namespace powerpoint {

namespace {

using office::arg;
using office::Object;
using session::OfficeSession;

constexpr std::int32_t asOnScreen = 1;
constexpr std::int32_t pictureFormat = -4147;

void insertPictureFile(OfficeSession& session, const std::string& file, std::int16_t slideIndex,
                       std::string_view description) {
    constexpr std::int32_t noLink = 0;
    constexpr std::int32_t saveWithDocument = -1;
    constexpr std::int32_t naturalSize = -1;

    const Object presentation =
        session.PowerPointApp.get("Presentations").get("Item", 1).toObject();
    const Object picture =
        presentation.get("Slides")
            .get("Item", std::int32_t{slideIndex})
            .get("Shapes")
            .call("AddPicture", file, noLink, saveWithDocument, 0, 0, naturalSize, naturalSize)
            .toObject();
    session.host.letEventsRun();
    FitPictureToSlide(picture, presentation);
    office::ContinueOnFailure().attempt([&] { picture.put("AlternativeText", description); });
}

void deleteQuietly(OfficeSession& session, const std::string& file) {
    office::ContinueOnFailure().attempt([&] { session.host.deleteFile(file); });
}

/// The picture's file, made from `range` by way of a chart on its sheet: a range has no export of
/// its own.
void exportRange(const Object& range, const std::string& file) {
    const Object sheet = range.get("Worksheet").toObject();
    range.call("CopyPicture", arg("Appearance", asOnScreen), arg("Format", pictureFormat));
    const Object holder =
        sheet.call("ChartObjects")
            .call("Add", 0, 0, range.get("Width").toDouble(), range.get("Height").toDouble())
            .toObject();
    holder.call("Activate");
    const Object chart = holder.get("Chart").toObject();
    chart.call("Paste");
    chart.call("Export", file, "PNG");
    holder.call("Delete");
}

void insertRow(Batch& batch, const catalogue::ExportItem& row, std::int16_t slideIndex) {
    const std::string& sheet = row.sheet;
    const std::string& caption = row.caption;
    if (row.isChartSheet()) {
        InsertChartSheetPicture(batch.session, sheet, slideIndex, caption);
    } else if (row.isEmbeddedChart()) {
        InsertEmbeddedChartPicture(batch.session, sheet, row.name, slideIndex, caption);
    } else {
        InsertRangePicture(batch.session, row.name, slideIndex, caption);
    }
}

}  // namespace

void ExportRowsAsPictures(OfficeSession& session, catalogue::ExportList& list,
                          const catalogue::ExportChoices& choices,
                          const session::FormHooks& forms) {
    Batch batch{session, list, choices, forms};
    BatchRoute route;
    route.selectsRow = true;
    route.prepareScreen = [](Batch& b) { b.session.ExcelApp.put("ScreenUpdating", false); };
    route.insertItem = insertRow;
    RunBatch(batch, route);
}

void InsertChartSheetPicture(OfficeSession& session, std::string_view sheetName,
                             std::int16_t slideIndex, std::string_view caption) {
    // One name for every chart sheet: the file of the last one is what stays in the folder.
    const std::string file = session.host.temporaryFile("EmbeddedChart_.png");
    session.ActiveBook.get("Charts")
        .get("Item", sheetName)
        .call("Export", arg("Filename", file), arg("FilterName", "PNG"));
    insertPictureFile(session, file, slideIndex, caption.empty() ? sheetName : caption);
}

void InsertEmbeddedChartPicture(OfficeSession& session, std::string_view sheetName,
                                std::string_view chartName, std::int16_t slideIndex,
                                std::string_view caption) {
    const std::string file =
        session.host.temporaryFile(fmt::format("EmbeddedChart_{}.png", chartName));
    session.ActiveBook.get("Sheets")
        .get("Item", sheetName)
        .call("ChartObjects")
        .get("Item", chartName)
        .get("Chart")
        .call("Export", arg("Filename", file), arg("FilterName", "PNG"));
    insertPictureFile(session, file, slideIndex, caption.empty() ? chartName : caption);
    deleteQuietly(session, file);
}

void InsertRangePicture(OfficeSession& session, std::string_view rangeName, std::int16_t slideIndex,
                        std::string_view caption) {
    Object range;
    office::ContinueOnFailure().attempt([&] {
        range =
            session.ActiveBook.get("Names").get("Item", rangeName).get("RefersToRange").toObject();
    });
    if (!range) {
        session::ShowWarningNotice(
            session.notices, fmt::format("? Named range '{}' not found or invalid.", rangeName));
        return;
    }
    const std::string file = session.host.temporaryFile(fmt::format("Range_{}.png", rangeName));
    exportRange(range, file);
    insertPictureFile(session, file, slideIndex, caption.empty() ? rangeName : caption);
    deleteQuietly(session, file);
}

}  // namespace powerpoint

#include "powerpoint/pictures.h"

#include <fmt/format.h>

#include <string>

#include "catalogue/row_objects.h"
#include "office/failure_patterns.h"
#include "powerpoint/pasted_shape.h"
#include "powerpoint/placement.h"
#include "session/file_names.h"
#include "session/powerpoint_session.h"

namespace powerpoint {

namespace {

using catalogue::ExportItem;
using office::arg;
using office::Object;
using session::OfficeSession;

void insertPictureFile(OfficeSession& session, const ExportItem& row, const std::string& file,
                       std::int32_t slideIndex) {
    constexpr std::int32_t noLink = 0;
    constexpr std::int32_t saveWithDocument = -1;
    constexpr std::int32_t naturalSize = -1;

    const Object picture =
        slideOf(session, slideIndex)
            .get("Shapes")
            .call("AddPicture", file, noLink, saveWithDocument, 0, 0, naturalSize, naturalSize)
            .toObject();
    session.host.letEventsRun();
    FitPictureToSlide(picture, session.SessionPresentation);
    describeShape(picture, row);
}

/// The picture's file, made from `range` by way of a chart on its sheet: a range has no export of
/// its own. The chart goes again, whatever happens.
void exportRange(const Object& range, const std::string& file) {
    constexpr std::int32_t asOnScreen = 1;
    constexpr std::int32_t pictureFormat = -4147;

    const Object sheet = range.get("Worksheet").toObject();
    range.call("CopyPicture", arg("Appearance", asOnScreen), arg("Format", pictureFormat));
    const Object holder =
        sheet.call("ChartObjects")
            .call("Add", 0, 0, range.get("Width").toDouble(), range.get("Height").toDouble())
            .toObject();
    office::ContinueOnFailure scope;
    const bool isMade = scope.attempt([&] {
        holder.call("Activate");
        const Object chart = holder.get("Chart").toObject();
        chart.call("Paste");
        chart.call("Export", file, "PNG");
    });
    if (isMade) {
        holder.call("Delete");
        return;
    }
    const office::Failure failure = *scope.lastFailure();
    scope.attempt([&] { holder.call("Delete"); });
    throw office::Failure(failure);
}

void exportChart(const Object& chart, const std::string& file) {
    chart.call("Export", arg("Filename", file), arg("FilterName", "PNG"));
}

}  // namespace

std::int32_t ExportRowsAsPictures(Batch& batch) {
    return RunBatch(
        batch, {.prepareScreen = [](Batch& b) { b.session.ExcelApp.put("ScreenUpdating", false); },
                .insertItem = InsertPicture,
                .noneArrived = {}});
}

bool InsertPicture(OfficeSession& session, const ExportItem& row, std::int32_t slideIndex) {
    const auto temporaryFile = [&](std::string_view kind, std::string_view name) {
        return session.host.temporaryFile(
            fmt::format("{}_{}.png", kind, session::safeFileName(name)));
    };
    const std::string& sheet = row.sheet;
    const std::string& name = row.name;
    std::string file;
    if (row.isChartSheet()) {
        // One name for every chart sheet: the file of the last one is what stays in the folder.
        file = temporaryFile("EmbeddedChart", "");
        exportChart(session.ActiveBook.get("Charts").get("Item", sheet).toObject(), file);
    } else if (row.isEmbeddedChart()) {
        file = temporaryFile("EmbeddedChart", name);
        exportChart(session.ActiveBook.get("Sheets")
                        .get("Item", sheet)
                        .call("ChartObjects")
                        .get("Item", name)
                        .get("Chart")
                        .toObject(),
                    file);
    } else {
        const Object range = catalogue::rangeOf(session, row);
        if (!range) {
            session::ShowWarningNotice(
                session.notices, fmt::format("? Named range '{}' not found or invalid.", name));
            return false;
        }
        file = temporaryFile("Range", name);
        exportRange(range, file);
    }
    insertPictureFile(session, row, file, slideIndex);
    if (!row.isChartSheet()) {
        office::ContinueOnFailure().attempt([&] { session.host.deleteFile(file); });
    }
    return true;
}

}  // namespace powerpoint

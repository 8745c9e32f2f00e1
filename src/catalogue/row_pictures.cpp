#include "catalogue/row_pictures.h"

#include <fmt/format.h>

#include "catalogue/row_copies.h"
#include "catalogue/row_objects.h"
#include "office/at_end.h"
#include "session/file_names.h"

namespace catalogue {

namespace {

using office::arg;
using office::Object;
using session::OfficeSession;

const char* filterOf(office::PictureKind kind) {
    switch (kind) {
        case office::PictureKind::Svg:
            return "SVG";
        case office::PictureKind::Emf:
            return "EMF";
        default:
            return "PNG";
    }
}

/// By way of a chart on the sheet: a range has no export of its own. The chart goes again, whatever
/// happens; that it can't be deleted is told unless something else has failed before.
void exportRange(const Object& range, const std::string& file, const char* filter) {
    const Object sheet = range.get("Worksheet").toObject();
    CopyCellsAsPicture(range, CopyFormat::Vectors);
    const Object holder =
        sheet.call("ChartObjects")
            .call("Add", 0, 0, range.get("Width").toDouble(), range.get("Height").toDouble())
            .toObject();
    try {
        holder.call("Activate");
        const Object chart = holder.get("Chart").toObject();
        chart.call("Paste");
        chart.call("Export", file, filter);
    } catch (const office::Failure&) {
        office::asFarAsPossible([&] { holder.call("Delete"); });
        throw;
    }
    holder.call("Delete");
}

}  // namespace

std::string TemporaryPictureOf(OfficeSession& session, const ExportItem& row) {
    return session.host.temporaryFile(
        fmt::format("{}_{}{}", row.isRange() ? "Range" : "EmbeddedChart",
                    session::safeFileName(row.isChartSheet() ? "" : row.name),
                    office::endingOf(session.Pictures)));
}

bool ExportRowPicture(OfficeSession& session, const ExportItem& row, const std::string& file) {
    const char* const filter = filterOf(session.Pictures);
    if (!row.isRange()) {
        chartOf(session, row).call("Export", arg("Filename", file), arg("FilterName", filter));
    } else {
        const Object range = rangeOf(session, row);
        if (!range) return false;
        exportRange(range, file, filter);
    }
    return true;
}

}  // namespace catalogue

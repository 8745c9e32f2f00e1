#include "catalogue/row_objects.h"

#include <fmt/format.h>

#include "office/failure_patterns.h"
#include "office/text.h"

namespace catalogue {

namespace {

/// The range of a row whose sheet is known, which may be nothing.
office::Object rangeFrom(const office::Object& sheet, const session::OfficeSession& session,
                         const ExportItem& row) {
    office::ContinueOnFailure scope;
    office::Object range;
    // A namesake may lead to another sheet, one of the row's own sheet too.
    const auto takeIfThere = [&](const office::Value& found) {
        const std::string where = found.get("Worksheet").get("Name").toText();
        if (office::sameIgnoringCase(where, row.sheet)) range = found.toObject();
    };
    scope.attempt([&] { takeIfThere(sheet.get("Range", row.name)); });
    if (range) return range;
    scope.attempt([&] {
        takeIfThere(session.ActiveBook.get("Names").get("Item", row.name).get("RefersToRange"));
    });
    return range;
}

}  // namespace

const RowObjects::Sheet& RowObjects::sheetOf(const ExportItem& row) {
    const std::string_view trimmed = office::trim(row.sheet);
    const auto [place, isNew] =
        sheets_.try_emplace((row.isChartSheet() ? "Charts/" : "Sheets/") + row.sheet);
    Sheet& sheet = place->second;
    if (isNew && !trimmed.empty()) {
        office::ContinueOnFailure scope;
        const auto lookUp = [&](const char* collection, std::string_view name) {
            return scope.attempt([&] {
                sheet.object = session_.ActiveBook.get(collection).get("Item", name).toObject();
            });
        };
        const bool isChart = row.isChartSheet() && lookUp("Charts", row.sheet);
        // A name may begin or end with a blank of its own.
        if (!isChart && !lookUp("Sheets", row.sheet) && trimmed != row.sheet)
            lookUp("Sheets", trimmed);
        scope.attempt(
            [&] { sheet.isVisible = sheet.object.get("Visible").toLong() == visibleSheet; });
    }
    return sheet;
}

bool RowObjects::isOnVisibleSheet(const ExportItem& row) {
    return row.checked && sheetOf(row).isVisible;
}

bool RowObjects::isSheetGone(const ExportItem& row) {
    return sheetOf(row).object.isNothing();
}

bool RowObjects::isItemGone(const ExportItem& row) {
    if (!row.isMissing || isSheetGone(row)) return false;
    if (row.isRange()) return rangeFrom(sheetOf(row).object, session_, row).isNothing();
    return office::orElse([&] { return chartOf(session_, row).isNothing(); }, true);
}

bool RowObjects::isExportable(const ExportItem& row) {
    return isOnVisibleSheet(row) && !isItemGone(row);
}

const std::string& RowObjects::addressOf(const ExportItem& row) {
    const auto [place, isNew] = addresses_.try_emplace(row.identity());
    if (isNew && row.isRange()) {
        const office::Object range = rangeFrom(sheetOf(row).object, session_, row);
        place->second =
            office::orElse([&] { return range.get("Address").toText(); }, std::string());
    }
    return place->second;
}

bool RowObjects::isMultipleAreaRow(const ExportItem& row) {
    return addressOf(row).find(',') != std::string::npos;
}

office::Object chartObjectOf(const session::OfficeSession& session, const ExportItem& row) {
    const office::Object sheet = session.ActiveBook.get("Sheets").get("Item", row.sheet).toObject();
    office::ContinueOnFailure scope;
    office::Object object;
    if (!scope.attempt(
            [&] { object = sheet.call("ChartObjects").get("Item", row.name).toObject(); }))
        throw office::Failure(scope.lastFailure()->number(), scope.lastFailure()->source(),
                              chartNotFound(row));
    return object;
}

std::string chartNotFound(const ExportItem& row) {
    return fmt::format("Chart '{}' was not found on sheet '{}'.", row.name, row.sheet);
}

office::Object chartOf(const session::OfficeSession& session, const ExportItem& row) {
    if (!row.isChartSheet()) return chartObjectOf(session, row).get("Chart").toObject();
    office::ContinueOnFailure scope;
    office::Object chart;
    const bool isChartSheet = scope.attempt(
        [&] { chart = session.ActiveBook.get("Charts").get("Item", row.sheet).toObject(); });
    if (isChartSheet) return chart;
    return session.ActiveBook.get("Sheets")
        .get("Item", row.sheet)
        .call("ChartObjects", 1)
        .get("Chart")
        .toObject();
}

office::Object rangeOf(session::OfficeSession& session, const ExportItem& row) {
    office::ContinueOnFailure scope;
    office::Object sheet;
    scope.attempt(
        [&] { sheet = session.ActiveBook.get("Sheets").get("Item", row.sheet).toObject(); });
    return rangeFrom(sheet, session, row);
}

office::Object requiredRange(session::OfficeSession& session, const ExportItem& row) {
    office::Object range = rangeOf(session, row);
    if (!range) office::refuse("Range", rangeNotFound(row));
    return range;
}

std::string rangeNotFound(const ExportItem& row) {
    return fmt::format("Named range '{}' not found.", row.name);
}

}  // namespace catalogue

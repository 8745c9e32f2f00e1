#include "catalogue/row_objects.h"

#include <fmt/format.h>

#include "office/failure_patterns.h"
#include "office/text.h"

namespace catalogue {

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

bool RowObjects::isMultipleAreaRow(const ExportItem& row) {
    if (!row.isRange()) return false;
    office::ContinueOnFailure scope;
    office::Object range;
    const bool isOnSheet =
        scope.attempt([&] { range = sheetOf(row).object.get("Range", row.name).toObject(); });
    if (!isOnSheet) range = rangeOf(session_, row);
    return scope.read([&] { return range.get("Areas").get("Count").toLong() > 1; }, false);
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
    // A store may hold a sheet-level name with its sheet, without the quote that opens that.
    const std::string name = row.name.find('!') == std::string::npos ? row.name : "'" + row.name;
    office::ContinueOnFailure scope;
    office::Object range;
    const bool isOnSheet = scope.attempt([&] {
        range =
            session.ActiveBook.get("Sheets").get("Item", row.sheet).get("Range", name).toObject();
    });
    if (isOnSheet && range) return range;
    // The workbook may hold a namesake that lies on another sheet.
    scope.attempt([&] {
        const office::Value named =
            session.ActiveBook.get("Names").get("Item", row.name).get("RefersToRange");
        if (named.get("Worksheet").get("Name").toText() == row.sheet) {
            range = named.toObject();
        }
    });
    return range;
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

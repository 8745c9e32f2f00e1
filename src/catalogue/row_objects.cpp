#include "catalogue/row_objects.h"

#include "office/failure_patterns.h"
#include "office/text.h"

namespace catalogue {

namespace {

constexpr std::int32_t visibleSheet = -1;

}  // namespace

const RowObjects::Sheet& RowObjects::sheetOf(const ExportItem& row) {
    const char* collection = row.isChartSheet() ? "Charts" : "Sheets";
    const std::string_view trimmed = office::trim(row.sheet);
    const auto [place, isNew] = sheets_.try_emplace(std::string(collection) + "/" + row.sheet);
    Sheet& sheet = place->second;
    if (isNew && !trimmed.empty()) {
        office::ContinueOnFailure scope;
        const auto lookUp = [&](std::string_view name) {
            return scope.attempt([&] {
                sheet.object = session_.ActiveBook.get(collection).get("Item", name).toObject();
            });
        };
        // A name may begin or end with a blank of its own.
        if (!lookUp(row.sheet) && trimmed != row.sheet) lookUp(trimmed);
        scope.attempt(
            [&] { sheet.isVisible = sheet.object.get("Visible").toLong() == visibleSheet; });
    }
    return sheet;
}

bool RowObjects::isOnVisibleSheet(const ExportItem& row) {
    return row.checked && sheetOf(row).isVisible;
}

bool RowObjects::isMultipleAreaRow(const ExportItem& row) {
    if (row.kind != ItemKind::Range) return false;
    return office::orElse(
        [&] {
            const office::Value range = sheetOf(row).object.get("Range", row.name);
            return range.get("Areas").get("Count").toLong() > 1;
        },
        false);
}

office::Object rangeOf(session::OfficeSession& session, const ExportItem& row) {
    // A sheet-level name is listed without the quote that opens its sheet.
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
            session.ActiveBook.get("Names").get("Item", name).get("RefersToRange");
        if (named.get("Worksheet").get("Name").toText() == row.sheet) {
            range = named.toObject();
        }
    });
    return range;
}

}  // namespace catalogue

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

}  // namespace catalogue

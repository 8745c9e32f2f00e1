#include "catalogue/row_objects.h"

#include "catalogue/item_table.h"
#include "office/failure_patterns.h"
#include "office/text.h"

namespace catalogue {

namespace {

constexpr std::int32_t visibleSheet = -1;

}  // namespace

const RowObjects::Sheet& RowObjects::sheetOf(const ExportRow& row) {
    const char* collection = row.isChartSheet() ? "Charts" : "Sheets";
    const std::string name(office::trim(row.SubItems(1)));
    const auto [place, isNew] = sheets_.try_emplace(std::string(collection) + "/" + name);
    Sheet& sheet = place->second;
    if (isNew && !name.empty()) {
        office::ContinueOnFailure scope;
        scope.attempt([&] {
            sheet.object = session_.ActiveBook.get(collection).get("Item", name).toObject();
        });
        scope.attempt(
            [&] { sheet.isVisible = sheet.object.get("Visible").toLong() == visibleSheet; });
    }
    return sheet;
}

bool RowObjects::isOnVisibleSheet(const ExportRow& row) {
    return row.Checked && sheetOf(row).isVisible;
}

bool RowObjects::isMultipleAreaRow(const ExportRow& row) {
    if (row.SubItems(5) != item_kind::range) return false;
    return office::orElse(
        [&] {
            const office::Value range = sheetOf(row).object.get("Range", row.Text);
            return range.get("Areas").get("Count").toLong() > 1;
        },
        false);
}

bool IsMultipleAreaRow(session::OfficeSession& session, const ExportRow& row) {
    return RowObjects(session).isMultipleAreaRow(row);
}

}  // namespace catalogue

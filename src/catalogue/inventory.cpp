#include "catalogue/inventory.h"

#include <fmt/format.h>

#include <algorithm>
#include <limits>

#include "catalogue/excel_pause.h"
#include "catalogue/item_store.h"
#include "catalogue/list_order.h"
#include "catalogue/list_rows.h"
#include "catalogue/row_objects.h"
#include "office/failure_patterns.h"
#include "session/workbook_store.h"

namespace catalogue {

namespace {

namespace store = session::store;

std::int32_t countEmbeddedCharts(const office::Object& book) {
    const office::Value sheets = book.get("Sheets");
    const std::int32_t sheetCount = sheets.get("Count").toLong();
    std::int32_t charts = 0;
    for (std::int32_t i = 1; i <= sheetCount; ++i) {
        const office::Object sheet = sheets.get("Item", i).toObject();
        if (sheet.typeName() != "Worksheet") continue;
        charts += sheet.get("ChartObjects").get("Count").toLong();
    }
    return charts;
}

bool isReserved(const std::string& nameText) {
    return nameText == store::itemsName || nameText == store::reservedName ||
           nameText == store::foreignName;
}

std::int32_t countRangeNames(const office::Object& book) {
    office::ContinueOnFailure scope;
    office::Object names;
    std::int32_t count = 0;
    scope.attempt([&] {
        names = book.get("Names").toObject();
        count = names.get("Count").toLong();
    });
    std::int32_t ranges = 0;
    for (std::int32_t i = 1; i <= count; ++i) {
        scope.attempt([&] {
            const office::Value name = names.get("Item", i);
            const bool isRange = !name.get("RefersToRange").toObject().isNothing();
            if (isRange && !isReserved(name.get("Name").toText())) ++ranges;
        });
    }
    return ranges;
}

void makeStoreSheetIfMissing(session::OfficeSession& session) {
    if (session::SheetExists(session, store::sheetName)) return;
    const office::Value sheets = session.ActiveBook.get("Sheets");
    const office::Value last = sheets.get("Item", sheets.get("Count").toLong());
    const office::Value added =
        session.ActiveBook.get("Worksheets").call("Add", office::arg("After", last));
    added.put("Name", store::sheetName);
    added.put("Visible", store::veryHidden);
}

int iconOf(const std::string& kind) {
    if (kind == item_kind::chartSheet) return 1;
    if (kind == item_kind::embedded) return 3;
    return 4;
}

ExportRow rowOf(const office::Table& block, std::size_t row) {
    const auto text = [&](std::size_t column) { return block.at(row, column).toText(); };
    ExportRow filled;
    filled.Text = text(store::itemNameColumn);
    filled.SubItems(1) = text(store::sheetNameColumn);
    filled.SubItems(2) = text(store::slideNumberColumn);
    filled.SubItems(3) = text(store::orderColumn);
    filled.SubItems(4) = text(store::captionColumn);
    filled.SubItems(5) = text(store::itemKindColumn);
    filled.SubItems(6) = text(store::laterRowColumn);
    filled.SubItems(7) = text(store::itemKeyColumn);
    filled.SmallIcon = iconOf(filled.SubItems(5));
    filled.Checked = block.at(row, store::includedColumn).toBool();
    return filled;
}

/// The store down to the last entry of column A. The marker row between older and later items is
/// read as a row like any other; a store without any entry gives no rows.
office::Table readStore(session::OfficeSession& session) {
    constexpr std::int32_t up = -4162;
    const office::Object sheet = storeSheet(session);
    const std::int32_t bottom = sheet.get("Cells").get("Rows").get("Count").toLong();
    const std::int32_t lastRow = sheet.get("Cells", bottom, 1).get("End", up).get("Row").toLong();
    office::Table block = sheet.get("Range", fmt::format("A1:T{}", lastRow)).get("Value").toTable();
    const bool isEmpty = lastRow == 1 && block.at(1, store::itemNameColumn).isBlank();
    return isEmpty ? office::Table(0, store::columnCount) : block;
}

bool hasSeveralAreas(const InventoryWalk& walk, RowObjects& objects, const ExportRow& row) {
    if (row.SubItems(5) != item_kind::range) return false;
    // The walk has looked at nearly all of them; what is left are rows of hidden sheets and of
    // names that have vanished.
    const auto known = walk.hasSeveralAreas.find(row.SubItems(7));
    return known != walk.hasSeveralAreas.end() ? known->second : objects.isMultipleAreaRow(row);
}

CheckAllState stateOf(std::size_t checked, std::size_t rows) {
    if (checked == 0) return CheckAllState::None;
    return checked == rows ? CheckAllState::All : CheckAllState::Some;
}

}  // namespace

void CountWorkbookItems(session::OfficeSession& session) {
    session.ItemCount = 0;
    session.ItemCountCopy = 0;
    if (session.ActiveBook.isNothing()) return;
    const office::Object& book = session.ActiveBook;
    std::int32_t count = countEmbeddedCharts(book);
    count += book.get("Charts").get("Count").toLong();
    count += countRangeNames(book);
    session.ItemCount = static_cast<std::int16_t>(
        std::min<std::int32_t>(count, std::numeric_limits<std::int16_t>::max()));
    session.ItemCountCopy = session.ItemCount;
}

CheckAllState LoadItemsToForm(session::OfficeSession& session, InventoryValues& values,
                              ExportList& list) {
    std::size_t checked = 0;
    {
        const ExcelPause pause(session);
        makeStoreSheetIfMissing(session);
        ItemTable table;
        const InventoryWalk walk = BuildItemTable(session, values, table);
        const office::Table block = readStore(session);

        list.rows.clear();
        list.rows.reserve(block.rows());
        RowObjects objects(session);
        for (std::size_t i = 1; i <= block.rows(); ++i) {
            ExportRow row = rowOf(block, i);
            if (row.Checked) ++checked;
            if (hasSeveralAreas(walk, objects, row)) {
                row.Checked = false;
                row.ForeColor = RowColourRefused;
            }
            list.rows.push_back(std::move(row));
        }
    }
    // By the sheets' order while column 4 still holds it; from the second time on the order that
    // the user left comes first, then what has been added since. The running order takes column 4
    // over.
    constexpr std::size_t sheetOrderColumn = 4;
    constexpr std::size_t laterOrderColumn = 7;
    const std::size_t column = values.StoreIsNew ? sheetOrderColumn : laterOrderColumn;
    SotrListView(list, column, sortTypeOfColumn(column));
    // A list takes its first row as the selected one.
    list.selected = list.rows.empty() ? -1 : 0;
    values.ListLoaded = true;
    RenumberIncludedRows(list);
    return stateOf(checked, list.rows.size());
}

}  // namespace catalogue

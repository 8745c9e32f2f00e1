#include "catalogue/item_store.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>
#include <vector>

#include "session/workbook_store.h"

namespace catalogue {

namespace {

namespace store = session::store;

constexpr std::int32_t worksheetType = -4167;
constexpr std::int32_t visibleSheet = -1;

/// What the store holds as the walk begins.
struct StoredRows {
    bool hasFirstItem = false;
    bool hasFirstKey = false;
    std::int32_t rows = 1;
    std::unordered_set<std::string> keys;
};

bool isBlankRow(const office::Table& block, std::size_t row) {
    for (std::size_t column = 1; column <= block.columns(); ++column) {
        if (!block.at(row, column).isBlank()) return false;
    }
    return true;
}

/// All of it is read as one block: cell by cell, the look-ups would cost items times rows.
///
/// The rows are those of the region at A1: down to the first blank one, the marker row included.
/// They are counted here, since a suite that takes an empty text for an empty cell ends that region
/// at the empty column of slide numbers.
StoredRows readStoredRows(const office::Object& sheet) {
    const office::Value used = sheet.get("UsedRange");
    const std::int32_t bottom =
        used.get("Row").toLong() + used.get("Rows").get("Count").toLong() - 1;
    const office::Table block =
        sheet.get("Range", fmt::format("A1:H{}", std::max(bottom, 1))).get("Value").toTable();

    StoredRows stored;
    stored.hasFirstItem = !block.at(1, store::itemNameColumn).isBlank();
    stored.hasFirstKey = !block.at(1, store::itemKeyColumn).isBlank();
    std::size_t row = 1;
    while (row <= block.rows() && !isBlankRow(block, row)) {
        stored.keys.insert(block.at(row, store::itemKeyColumn).toText());
        ++row;
    }
    stored.rows = std::max(static_cast<std::int32_t>(row) - 1, 1);
    return stored;
}

/// Looking names up needs a worksheet on top, and so does whoever works on after this. Hidden ones
/// can't be selected. The first sheet is never tried.
void leaveChartSheet(const session::OfficeSession& session, InventoryValues& values) {
    const office::Object& book = session.ActiveBook;
    const office::Value active = book.get("ActiveSheet");
    if (active.get("Type").toLong() == worksheetType) return;
    values.StartSheetName = active.get("Name").toText();
    const office::Value sheets = book.get("Sheets");
    const std::int32_t count = sheets.get("Count").toLong();
    for (std::int32_t i = 2; i <= count; ++i) {
        const office::Value sheet = sheets.get("Item", i);
        if (sheet.get("Type").toLong() != worksheetType) continue;
        if (sheet.get("Visible").toLong() != visibleSheet) continue;
        sheet.call("Select");
        return;
    }
}

void fillRow(office::Table& block, std::size_t row, const ExportItem& item) {
    block.at(row, store::itemNameColumn) = item.ItemName;
    block.at(row, store::sheetNameColumn) = item.SheetName;
    block.at(row, store::slideNumberColumn) = item.SlideNumber;
    block.at(row, store::orderColumn) = item.SheetIndex;
    block.at(row, store::includedColumn) = item.Included;
    block.at(row, store::itemKindColumn) = item.ItemKind;
    block.at(row, store::laterRowColumn) = item.StoreState;
    block.at(row, store::itemKeyColumn) = item.ItemKey();
}

void writeBlock(const office::Object& sheet, std::int32_t firstRow, const office::Table& block) {
    const auto lastRow = firstRow + static_cast<std::int32_t>(block.rows()) - 1;
    sheet.get("Range", fmt::format("A{}:H{}", firstRow, lastRow)).put("Value", block);
}

void writeAllItems(const office::Object& sheet, const ItemTable& table) {
    if (table.empty()) return;
    office::Table block(table.size(), store::itemKeyColumn);
    for (std::size_t i = 0; i < table.size(); ++i) fillRow(block, i + 1, table[i]);
    writeBlock(sheet, 1, block);
}

/// All rows of one run get the same number in column 7, that of the first of them.
void appendNewItems(const office::Object& sheet, const ItemTable& table, std::int32_t lastRow) {
    std::vector<const ExportItem*> added;
    for (const ExportItem& item : table) {
        if (item.StoreState == newItem) added.push_back(&item);
    }
    if (added.empty()) return;
    office::Table block(added.size(), store::itemKeyColumn);
    for (std::size_t i = 0; i < added.size(); ++i) {
        fillRow(block, i + 1, *added[i]);
        block.at(i + 1, store::laterRowColumn) = lastRow + 1;
    }
    writeBlock(sheet, lastRow + 1, block);
}

}  // namespace

office::Object storeSheet(session::OfficeSession& session) {
    return session.ActiveBook.get("Worksheets").get("Item", store::sheetName).toObject();
}

InventoryWalk BuildItemTable(session::OfficeSession& session, InventoryValues& values,
                             ItemTable& table) {
    values.ExpectedItems = session.ItemCount;
    session.ItemCount = 0;
    session.ItemCountCopy = 0;
    table.clear();
    // Once on and off again: Excel paints what is there before the walk begins.
    session.ExcelApp.put("ScreenUpdating", true);
    session.ExcelApp.put("ScreenUpdating", false);

    const office::Object sheet = storeSheet(session);
    StoredRows stored = readStoredRows(sheet);
    if (!stored.hasFirstItem) values.StoreIsNew = true;
    if (!values.StoreIsNew && !stored.hasFirstKey) {
        // A store of an older form, which knew no keys.
        sheet.get("Cells").call("ClearContents");
        stored = {};
    }

    session.progress.showLoading();
    InventoryWalk walk{session, values, table, std::move(stored.keys), {}};
    leaveChartSheet(session, values);
    CollectEmbeddedCharts(walk);
    CollectChartSheets(walk);
    CollectNamedRanges(walk);

    values.LastStoreRow = stored.rows;
    if (!stored.hasFirstItem) {
        values.StoreIsNew = true;
        writeAllItems(sheet, table);
        values.LastStoreRow = std::max(static_cast<std::int32_t>(table.size()), 1);
    } else if (!values.StoreIsNew) {
        appendNewItems(sheet, table, stored.rows);
    }
    session.ExcelApp.put("ScreenUpdating", true);
    return walk;
}

}  // namespace catalogue

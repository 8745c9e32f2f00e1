#include "session/workbook_store.h"

#include <fmt/format.h>

#include <algorithm>
#include <map>
#include <unordered_set>
#include <utility>

#include "office/failure_patterns.h"
#include "office/text.h"
#include "session/store_sheet.h"

namespace session {

namespace {

using office::Object;
using office::Table;
using office::Value;

/// Columns of an item's row.
constexpr std::size_t nameColumn = 1;
constexpr std::size_t sheetColumn = 2;
constexpr std::size_t slideNumberColumn = 3;
constexpr std::size_t orderColumn = 4;
constexpr std::size_t checkedColumn = 5;
constexpr std::size_t kindColumn = 6;
constexpr std::size_t laterRowColumn = 7;
constexpr std::size_t keyColumn = 8;
/// The caption stands apart, behind the cells of the placement.
constexpr std::size_t captionColumn = 20;

constexpr const char* placementCells = "O1:R1";
constexpr const char* defaultWord = "Default";

Object storeSheet(const OfficeSession& session) {
    return session.ActiveBook.get("Worksheets").get("Item", store::sheetName).toObject();
}

Value cells(const Object& sheet, std::string_view columns, std::size_t firstRow,
            std::size_t lastRow) {
    const auto split = columns.find(':');
    return sheet.get("Range", fmt::format("{}{}:{}{}", columns.substr(0, split), firstRow,
                                          columns.substr(split + 1), lastRow));
}

std::size_t lastUsedRow(const Object& sheet) {
    const Value used = sheet.get("UsedRange");
    const std::int32_t last = used.get("Row").toLong() + used.get("Rows").get("Count").toLong() - 1;
    return static_cast<std::size_t>(std::max(last, 1));
}

ItemKind kindOf(const std::string& name, const std::string& text) {
    if (name == chartSheetText) return ItemKind::ChartSheet;
    return text == kindText(ItemKind::Chart) ? ItemKind::Chart : ItemKind::Range;
}

/// Excel takes the quote that begins "'Net sales'!Total" for the mark of a text, and drops it.
bool lacksOpeningQuote(const ExportItem& item) {
    return item.isRange() && item.name.find("'!") != std::string::npos &&
           !item.name.starts_with('\'');
}

ExportItem itemIn(const Table& block, std::size_t row) {
    const auto text = [&](std::size_t column) { return block.at(row, column).toText(); };
    ExportItem item;
    item.name = text(nameColumn);
    item.sheet = text(sheetColumn);
    item.slideNumber = text(slideNumberColumn);
    item.order = text(orderColumn);
    item.caption = text(captionColumn);
    item.laterRow = text(laterRowColumn);
    item.kind = kindOf(item.name, text(kindColumn));
    if (lacksOpeningQuote(item)) item.name.insert(0, "'");
    // A cell that somebody has written to may say neither; the rest of the list is as good as ever.
    item.checked = office::orElse([&] { return block.at(row, checkedColumn).toBool(); }, true);
    return item;
}

/// The running order is a number in the store. Excel makes one of the text by the column's format;
/// other suites take a text for what it is.
Value numberIn(const std::string& text) {
    if (const auto number = office::numberOf(text)) return *number;
    return text;
}

/// Columns A to H; the caption is written apart.
void fillRow(Table& block, std::size_t row, const ExportItem& item) {
    block.at(row, nameColumn) = item.name;
    block.at(row, sheetColumn) = item.sheet;
    block.at(row, slideNumberColumn) = item.slideNumber;
    block.at(row, orderColumn) = numberIn(item.order);
    block.at(row, checkedColumn) = item.checked;
    block.at(row, kindColumn) = kindText(item.kind);
    block.at(row, laterRowColumn) = item.laterRow;
    block.at(row, keyColumn) = item.key();
}

/// What the store holds, read as one block.
struct Stored {
    std::vector<ExportItem> items;
    bool hasKeys = false;
    /// The last row with an entry in columns A to H: an item's, or the marker below the items.
    std::size_t lastRow = 0;
};

Stored readStored(const Object& sheet) {
    const std::size_t bottom = lastUsedRow(sheet);
    const Table block = cells(sheet, "A:T", 1, bottom).get("Value").toTable();
    Stored stored;
    for (std::size_t row = 1; row <= bottom; ++row) {
        for (std::size_t column = nameColumn; column <= keyColumn; ++column) {
            if (!block.at(row, column).isBlank()) stored.lastRow = row;
        }
        // The marker's row, and whatever else is no item.
        if (block.at(row, nameColumn).isBlank()) continue;
        if (stored.items.empty()) stored.hasKeys = !block.at(row, keyColumn).isBlank();
        stored.items.push_back(itemIn(block, row));
    }
    return stored;
}

/// Chart sheets that have become worksheets, as LibreOffice saves them: the stored row goes on
/// standing for the chart on it.
std::unordered_set<std::string> chartSheetsLostIn(const Stored& stored,
                                                  const std::vector<ExportItem>& found) {
    std::unordered_set<std::string> sheets;
    for (const ExportItem& item : stored.items)
        if (item.isChartSheet()) sheets.insert(item.sheet);
    for (const ExportItem& item : found)
        if (item.isChartSheet()) sheets.erase(item.sheet);
    return sheets;
}

/// Names of other sheets used to be stored without their sheets: the row goes on standing for the
/// name, with all that was decided about it.
void nameTheirSheets(std::vector<ExportItem>& stored, const std::vector<ExportItem>& found) {
    std::map<ItemIdentity, int> open;
    for (const ExportItem& item : stored) ++open[item.identity()];
    for (const ExportItem& item : found) --open[item.identity()];
    for (const ExportItem& item : found) {
        ExportItem former = item;
        former.name = nameWithoutSheet(item.name);
        if (!item.isRange() || former.name == item.name || open[item.identity()] >= 0) continue;
        const auto row = std::ranges::find(stored, former.identity(),
                                           [](const auto& each) { return each.identity(); });
        if (row == stored.end() || open[former.identity()] <= 0) continue;
        --open[former.identity()];
        row->name = item.name;
    }
}

/// The stored items and those of the found ones that are new, which all get the same number. Items
/// of a new store stand in the order of the sheets.
StoredItems merged(Stored stored, std::vector<ExportItem> found) {
    const bool wereUnknown = stored.items.empty();
    nameTheirSheets(stored.items, found);
    StoredItems all{stored.items, wereUnknown};
    const std::string laterRow = std::to_string(stored.lastRow + 1);
    if (wereUnknown) {
        const auto sheetOf = [](const ExportItem& item) {
            return office::leadingNumber(item.order);
        };
        std::ranges::stable_sort(found, {}, sheetOf);
    }
    const std::unordered_set<std::string> lostChartSheets = chartSheetsLostIn(stored, found);
    std::unordered_set<std::string> formerChartSheets = lostChartSheets;
    // Counted: where several bear one name, a new one is not taken for one that is known.
    std::map<ItemIdentity, int> known;
    for (const ExportItem& item : stored.items) ++known[item.identity()];
    for (ExportItem& item : found) {
        if (known[item.identity()]-- > 0) continue;
        if (item.isEmbeddedChart() && formerChartSheets.erase(item.sheet) > 0) continue;
        if (!wereUnknown) item.laterRow = laterRow;
        all.items.push_back(std::move(item));
    }
    for (std::size_t i = stored.items.size(); i-- > 0;) {
        ExportItem& item = all.items[i];
        const bool isOnWorksheet = item.isChartSheet() && lostChartSheets.contains(item.sheet) &&
                                   !formerChartSheets.contains(item.sheet);
        item.isMissing = known[item.identity()]-- > 0 && !isOnWorksheet;
    }
    return all;
}

/// Writes the items from index `first` on below row `lastRow`.
void appendRows(const Object& sheet, std::size_t lastRow, const std::vector<ExportItem>& items,
                std::size_t first) {
    if (first == items.size()) return;
    Table block(items.size() - first, keyColumn);
    for (std::size_t i = 1; i <= block.rows(); ++i) fillRow(block, i, items[first + i - 1]);
    cells(sheet, "A:H", lastRow + 1, lastRow + block.rows()).put("Value", block);
}

void writeItems(const Object& sheet, const std::vector<ExportItem>& rows) {
    const std::size_t markerRow = rows.size() + 1;
    // As far as the sheet is used: what stood further down goes.
    Table block(std::max(markerRow, lastUsedRow(sheet)), keyColumn);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        fillRow(block, i + 1, rows[i]);
        // The order that the user has left holds for items that came later too.
        block.at(i + 1, laterRowColumn) = "";
    }
    // The marker lengthens the region of the items by one row: rows that a later run adds begin
    // below it.
    block.at(markerRow, laterRowColumn) = static_cast<std::int32_t>(markerRow);
    cells(sheet, "A:H", 1, block.rows()).put("Value", block);
}

void writeCaptions(const Object& sheet, const std::vector<ExportItem>& rows) {
    if (rows.empty()) return;
    Table block(rows.size(), 1);
    for (std::size_t i = 0; i < rows.size(); ++i) block.at(i + 1, 1) = rows[i].caption;
    const Value captions = cells(sheet, "T:T", 1, rows.size());
    // A store of an earlier version lacks the format.
    captions.put("NumberFormat", store::textFormat);
    captions.put("Value", block);
}

/// A text counts by the number that it begins with; "Default" has none.
std::optional<double> shareIn(const Value& cell) {
    const std::string text = cell.toText();
    if (text.find_first_of("0123456789") == std::string::npos) return std::nullopt;
    return office::leadingNumber(text);
}

Value cellOf(const std::optional<double>& share) {
    if (share) return *share;
    return defaultWord;
}

}  // namespace

StoredItems MergeWithStore(OfficeSession& session, std::vector<ExportItem> found) {
    if (!SheetExists(session, store::sheetName)) return {std::move(found), true};
    Stored stored = readStored(storeSheet(session));
    if (!stored.hasKeys) stored = {};
    return merged(stored, std::move(found));
}

StoredItems MergeIntoStore(OfficeSession& session, std::vector<ExportItem> found) {
    const Object sheet = storeSheet(session);
    Stored stored = readStored(sheet);
    if (!stored.hasKeys) {
        if (!stored.items.empty()) sheet.get("Cells").call("ClearContents");
        stored = {};
    }
    const std::size_t known = stored.items.size();
    StoredItems all = merged(stored, std::move(found));
    appendRows(sheet, stored.lastRow, all.items, known);
    return all;
}

bool SaveListToStore(OfficeSession& session, const ExportList& list) {
    if (!list.isLoaded) return true;
    // In a file that LibreOffice has saved it is merely hidden: the user can show and delete it.
    EnsureStoreSheet(session);
    office::ContinueOnFailure scope;
    Object sheet;
    if (!scope.attempt([&] { sheet = storeSheet(session); })) return false;
    scope.attempt([&] { writeItems(sheet, list.rows); });
    scope.attempt([&] { writeCaptions(sheet, list.rows); });
    return !scope.failed();
}

Placement readStoredPlacement(OfficeSession& session) {
    const Table held = storeSheet(session).get("Range", placementCells).get("Value").toTable();
    return {shareIn(held.at(1, 1)), shareIn(held.at(1, 2)), shareIn(held.at(1, 4))};
}

void writeStoredPlacement(OfficeSession& session, const Placement& placement) {
    const Object cellRange = storeSheet(session).get("Range", placementCells).toObject();
    Table block = cellRange.get("Value").toTable();
    block.at(1, 1) = cellOf(placement.top);
    block.at(1, 2) = cellOf(placement.width);
    block.at(1, 4) = cellOf(placement.left);
    cellRange.put("Value", block);
}

}  // namespace session

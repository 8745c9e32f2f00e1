#include "catalogue/inventory_walk.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <utility>

#include "catalogue/export_list.h"
#include "office/failure_patterns.h"
#include "session/workbook_store.h"

namespace catalogue {

namespace {

constexpr std::int32_t visibleSheet = -1;

void append(InventoryWalk& walk, ExportItem item) {
    if (!walk.values.StoreIsNew) MarkIfNew(walk, item);
    walk.table.push_back(std::move(item));
    walk.session.ItemCount = static_cast<std::int16_t>(
        std::min<std::size_t>(walk.table.size(), std::numeric_limits<std::int16_t>::max()));
    AdvanceLoadBar(walk.session, walk.values);
}

/// Where the visible sheets of the workbook stand, by name. Read once for a walk: nothing shows or
/// moves a sheet while it lasts, and thousands of names may stand on a handful of sheets.
std::map<std::string, std::int32_t> visibleSheets(const office::Object& book) {
    std::map<std::string, std::int32_t> indexOf;
    const office::Value sheets = book.get("Sheets");
    const std::int32_t count = sheets.get("Count").toLong();
    for (std::int32_t i = 1; i <= count; ++i) {
        const office::Value sheet = sheets.get("Item", i);
        if (sheet.get("Visible").toLong() == visibleSheet) indexOf[sheet.get("Name").toText()] = i;
    }
    return indexOf;
}

/// A sheet-level name without its sheet; any other as it stands.
std::string shortName(const std::string& nameText) {
    const std::size_t mark = nameText.rfind('!');
    return mark == std::string::npos ? nameText : nameText.substr(mark + 1);
}

/// A name is found from the sheet of its range if it belongs to the workbook or to that sheet; the
/// sheet's own wins.
void noteAreas(InventoryWalk& walk, const std::string& nameText, const ExportItem& item,
               const office::Value& range) {
    const bool isSheetLevel = nameText.find('!') != std::string::npos;
    const bool isOwnSheets = nameText == item.SheetName + "!" + item.ItemName ||
                             nameText == "'" + item.SheetName + "'!" + item.ItemName;
    if (isSheetLevel && !isOwnSheets) return;
    const std::string key = item.ItemKey();
    if (!isSheetLevel && walk.hasSeveralAreas.contains(key)) return;
    // The address joins its areas by commas and holds no sheet name that could bring in another
    // one.
    walk.hasSeveralAreas[key] = range.get("Address").toText().find(',') != std::string::npos;
}

struct NamesWalk {
    InventoryWalk& walk;
    std::string bookName;
    std::map<std::string, std::int32_t> sheetIndex;
};

void appendIfUsable(NamesWalk& names, const office::Value& name) {
    // The name's own range says at once which sheet and workbook it lies in: it is the one that a
    // look-up of the name from the application would find, at a fraction of the calls and whatever
    // sheet is active.
    const office::Value range = name.get("RefersToRange");
    const office::Value sheet = range.get("Worksheet");
    ExportItem item;
    item.SheetName = sheet.get("Name").toText();
    if (item.SheetName == session::store::sheetName) return;
    const auto place = names.sheetIndex.find(item.SheetName);
    if (place == names.sheetIndex.end()) return;
    if (sheet.get("Parent").get("Name").toText() != names.bookName) return;
    if (!name.get("Visible").toBool()) return;

    const std::string nameText = name.get("Name").toText();
    item.ItemName = shortName(nameText);
    item.SheetIndex = place->second;
    item.ItemKind = item_kind::range;
    noteAreas(names.walk, nameText, item, range);
    append(names.walk, std::move(item));
}

}  // namespace

void CollectEmbeddedCharts(InventoryWalk& walk) {
    const office::Value sheets = walk.session.ActiveBook.get("Worksheets");
    const std::int32_t sheetCount = sheets.get("Count").toLong();
    for (std::int32_t i = 1; i <= sheetCount; ++i) {
        const office::Value sheet = sheets.get("Item", i);
        if (sheet.get("Visible").toLong() != visibleSheet) continue;
        const office::Value charts = sheet.get("ChartObjects");
        const std::int32_t chartCount = charts.get("Count").toLong();
        if (chartCount == 0) continue;

        ExportItem item;
        item.SheetName = sheet.get("Name").toText();
        item.SheetIndex = sheet.get("Index").toLong();
        item.ItemKind = item_kind::embedded;
        for (std::int32_t j = 1; j <= chartCount; ++j) {
            item.ItemName = charts.get("Item", j).get("Name").toText();
            append(walk, item);
        }
    }
}

void CollectChartSheets(InventoryWalk& walk) {
    const office::Value charts = walk.session.ActiveBook.get("Charts");
    const std::int32_t count = charts.get("Count").toLong();
    for (std::int32_t i = 1; i <= count; ++i) {
        const office::Value chart = charts.get("Item", i);
        if (chart.get("Visible").toLong() != visibleSheet) continue;
        ExportItem item;
        item.ItemName = chartSheetText;
        item.SheetName = chart.get("Name").toText();
        item.SheetIndex = chart.get("Index").toLong();
        item.ItemKind = item_kind::chartSheet;
        append(walk, std::move(item));
    }
}

void CollectNamedRanges(InventoryWalk& walk) {
    office::ContinueOnFailure scope;
    office::Object names;
    std::int32_t count = 0;
    scope.attempt([&] {
        names = walk.session.ActiveBook.get("Names").toObject();
        count = names.get("Count").toLong();
    });
    if (count < 1) return;

    NamesWalk namesWalk{walk, {}, {}};
    scope.attempt([&] {
        namesWalk.bookName = walk.session.ActiveBook.get("Name").toText();
        namesWalk.sheetIndex = visibleSheets(walk.session.ActiveBook);
    });
    // A name of a constant or with a broken reference fails, and only it is left out.
    for (std::int32_t i = 1; i <= count; ++i) {
        scope.attempt([&] { appendIfUsable(namesWalk, names.get("Item", i)); });
    }
}

void MarkIfNew(const InventoryWalk& walk, ExportItem& item) {
    item.StoreState = walk.storedKeys.contains(item.ItemKey()) ? "" : newItem;
}

void AdvanceLoadBar(session::OfficeSession& session, InventoryValues& values) {
    ++values.LoadProgress;
    // A percentage against a count: the bar starts anew where the two happen to meet. It keeps an
    // expectation of 0 from being divided by, too.
    if (session.progress.loadingValue() == values.ExpectedItems) {
        session.progress.clearLoading();
    } else if (values.ExpectedItems != 0) {
        const std::int64_t percent = std::int64_t{values.LoadProgress} * 100 / values.ExpectedItems;
        session.progress.setLoadingValue(static_cast<int>(percent));
    }
    session.host.letEventsRun();
}

}  // namespace catalogue

#include "catalogue/inventory.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "catalogue/inventory_walk.h"
#include "catalogue/list_columns.h"
#include "catalogue/list_rows.h"
#include "catalogue/row_objects.h"
#include "office/at_end.h"
#include "office/failure_patterns.h"
#include "session/store_sheet.h"
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
    return isOfExcelItself(nameText) || nameText == store::itemsName ||
           nameText == store::reservedName || nameText == store::foreignName;
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
            if (isReserved(name.get("Name").toText())) return;
            if (!name.get("RefersToRange").toObject().isNothing()) ++ranges;
        });
    }
    return ranges;
}

std::int16_t shortCount(std::size_t count) {
    constexpr std::size_t most = std::numeric_limits<std::int16_t>::max();
    return static_cast<std::int16_t>(std::min(count, most));
}

/// Excel doesn't draw, raise events or calculate while this lives, since a workbook can hold many
/// items. At its end, also after a failure, it draws, raises events, and calculates as the user has
/// chosen.
class ExcelPause {
public:
    // By way of the other constructor, so that a failure half-way through is undone as well.
    explicit ExcelPause(const session::OfficeSession& session) : ExcelPause(session.ExcelApp) {
        constexpr std::int32_t manual = -4135;
        excel_.put("ScreenUpdating", false);
        excel_.put("EnableEvents", false);
        excel_.put("Calculation", manual);
    }

    ~ExcelPause() {
        office::asFarAsPossible([this] {
            office::ContinueOnFailure scope;
            scope.attempt([&] { excel_.put("ScreenUpdating", true); });
            scope.attempt([&] { excel_.put("EnableEvents", true); });
            scope.attempt([&] { excel_.put("Calculation", calculation_); });
        });
    }
    ExcelPause(const ExcelPause&) = delete;
    ExcelPause& operator=(const ExcelPause&) = delete;

private:
    explicit ExcelPause(office::Object excel)
        : excel_(std::move(excel)),
          calculation_(excel_.get("Calculation").toLong()) {}

    office::Object excel_;
    std::int32_t calculation_;
};

/// Whoever works on after this needs a worksheet on top. Hidden ones can't be selected, and none
/// can in a window that shows how the workbook prints. The first sheet is never tried.
void leaveChartSheet(const office::Object& book) {
    constexpr std::int32_t worksheetType = -4167;
    if (book.get("ActiveSheet").get("Type").toLong() == worksheetType) return;
    const office::Value sheets = book.get("Sheets");
    const std::int32_t count = sheets.get("Count").toLong();
    for (std::int32_t i = 2; i <= count; ++i) {
        const office::Value sheet = sheets.get("Item", i);
        if (sheet.get("Type").toLong() != worksheetType) continue;
        if (sheet.get("Visible").toLong() != visibleSheet) continue;
        office::ContinueOnFailure().attempt([&] { sheet.call("Select"); });
        return;
    }
}

CheckAllState stateOf(std::size_t checked, std::size_t rows) {
    if (checked == 0) return CheckAllState::None;
    return checked == rows ? CheckAllState::All : CheckAllState::Some;
}

CheckAllState fill(session::OfficeSession& session, ExportList& list, session::StoredItems stored,
                   const KnownAreas& hasSeveralAreas) {
    list.rows = std::move(stored.items);
    std::size_t checked = 0;
    RowObjects objects(session);
    for (ExportItem& item : list.rows) {
        if (item.checked) ++checked;
        if (item.kind != ItemKind::Range) continue;
        // The walk has looked at nearly all of them; what is left are items of hidden sheets and of
        // names that have vanished.
        const auto known = hasSeveralAreas.find(item.identity());
        item.hasSeveralAreas =
            known != hasSeveralAreas.end() ? known->second : objects.isMultipleAreaRow(item);
        if (item.hasSeveralAreas) item.checked = false;
    }
    SortByColumn(list, stored.wereUnknown ? ListColumn::order : ListColumn::laterRow);
    RenumberIncludedRows(list);
    return stateOf(checked, list.rows.size());
}

}  // namespace

void CountWorkbookItems(session::OfficeSession& session) {
    session.ItemCount = 0;
    if (session.ActiveBook.isNothing()) return;
    const office::Object& book = session.ActiveBook;
    std::int32_t count = countEmbeddedCharts(book);
    count += book.get("Charts").get("Count").toLong();
    count += countRangeNames(book);
    session.ItemCount = shortCount(static_cast<std::size_t>(count));
}

CheckAllState LoadItemsToForm(session::OfficeSession& session, ExportList& list) {
    CheckAllState checkAll = CheckAllState::None;
    {
        const ExcelPause pause(session);
        session::EnsureStoreSheet(session);
        session.progress.showLoading();
        leaveChartSheet(session.ActiveBook);
        FoundItems found = FindItems(session);
        session.ItemCount = shortCount(found.items.size());
        checkAll = fill(session, list, session::MergeIntoStore(session, std::move(found.items)),
                        found.hasSeveralAreas);
    }
    // A list takes its first row as the selected one.
    list.selected = list.rows.empty() ? -1 : 0;
    list.isLoaded = true;
    return checkAll;
}

void ListItems(session::OfficeSession& session, ExportList& list) {
    FoundItems found = FindItems(session);
    fill(session, list, session::MergeWithStore(session, std::move(found.items)),
         found.hasSeveralAreas);
}

}  // namespace catalogue

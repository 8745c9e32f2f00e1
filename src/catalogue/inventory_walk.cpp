#include "catalogue/inventory_walk.h"

#include <algorithm>
#include <array>
#include <utility>

#include "catalogue/row_objects.h"
#include "office/failure_patterns.h"
#include "office/text.h"
#include "session/store_sheet.h"

namespace catalogue {

namespace {

using office::Object;
using office::Value;

/// Whether a sheet-level name belongs to this sheet.
bool belongsTo(std::string_view nameText, const std::string& sheet) {
    const std::string_view owner = nameText.substr(0, nameText.rfind('!'));
    return owner == sheet || owner == "'" + office::replaceAll(sheet, "'", "''") + "'";
}

/// What an item of a name is called: a name of the workbook or of the sheet that it leads to goes
/// without a sheet. That of another sheet keeps it, since nothing else tells it from a namesake.
std::string itemNameOf(const std::string& nameText, const std::string& sheet) {
    return belongsTo(nameText, sheet) ? std::string(session::nameWithoutSheet(nameText)) : nameText;
}

class Walk {
public:
    explicit Walk(session::OfficeSession& session)
        : session_(session),
          book_(session.ActiveBook),
          expected_(session.ItemCount) {}

    FoundItems run() {
        collectEmbeddedCharts();
        collectChartSheets();
        collectNamedRanges();
        return std::move(found_);
    }

private:
    void collectEmbeddedCharts();
    void collectChartSheets();
    void collectNamedRanges();
    void readVisibleSheets();
    void takeName(const Value& name);
    void noteAreas(const std::string& nameText, const ExportItem& item, const Value& range);
    void append(ExportItem item);
    void advanceLoadBar();

    session::OfficeSession& session_;
    Object book_;
    /// The quick count: the whole of the loading bar.
    std::int32_t expected_;
    std::string bookName_;
    /// Where the visible sheets stand, by name.
    std::map<std::string, std::int32_t> sheetIndex_;
    FoundItems found_;
};

void Walk::collectEmbeddedCharts() {
    const Value sheets = book_.get("Worksheets");
    const std::int32_t sheetCount = sheets.get("Count").toLong();
    for (std::int32_t i = 1; i <= sheetCount; ++i) {
        const Value sheet = sheets.get("Item", i);
        if (sheet.get("Visible").toLong() != visibleSheet) continue;
        const Value charts = sheet.get("ChartObjects");
        const std::int32_t chartCount = charts.get("Count").toLong();
        if (chartCount == 0) continue;

        ExportItem item;
        item.sheet = sheet.get("Name").toText();
        item.order = std::to_string(sheet.get("Index").toLong());
        item.kind = ItemKind::Chart;
        for (std::int32_t j = 1; j <= chartCount; ++j) {
            item.name = charts.get("Item", j).get("Name").toText();
            append(item);
        }
    }
}

void Walk::collectChartSheets() {
    const Value charts = book_.get("Charts");
    const std::int32_t count = charts.get("Count").toLong();
    for (std::int32_t i = 1; i <= count; ++i) {
        const Value chart = charts.get("Item", i);
        if (chart.get("Visible").toLong() != visibleSheet) continue;
        ExportItem item;
        item.name = session::chartSheetText;
        item.sheet = chart.get("Name").toText();
        item.order = std::to_string(chart.get("Index").toLong());
        item.kind = ItemKind::ChartSheet;
        append(std::move(item));
    }
}

void Walk::collectNamedRanges() {
    office::ContinueOnFailure scope;
    Object names;
    std::int32_t count = 0;
    scope.attempt([&] {
        names = book_.get("Names").toObject();
        count = names.get("Count").toLong();
    });
    if (count < 1) return;

    scope.attempt([&] {
        bookName_ = book_.get("Name").toText();
        readVisibleSheets();
    });
    // A name of a constant or with a broken reference fails, and only it is left out.
    for (std::int32_t i = 1; i <= count; ++i) {
        scope.attempt([&] { takeName(names.get("Item", i)); });
    }
}

/// Read once for a walk: nothing shows or moves a sheet while it lasts, and thousands of names may
/// stand on a handful of sheets.
void Walk::readVisibleSheets() {
    const Value sheets = book_.get("Sheets");
    const std::int32_t count = sheets.get("Count").toLong();
    for (std::int32_t i = 1; i <= count; ++i) {
        const Value sheet = sheets.get("Item", i);
        if (sheet.get("Visible").toLong() == visibleSheet) {
            sheetIndex_[sheet.get("Name").toText()] = i;
        }
    }
}

void Walk::takeName(const Value& name) {
    const std::string nameText = name.get("Name").toText();
    if (isOfExcelItself(nameText)) return;
    // The name's own range says at once which sheet and workbook it lies in: it is the one that a
    // look-up of the name from the application would find, at a fraction of the calls and whatever
    // sheet is active.
    const Value range = name.get("RefersToRange");
    const Value sheet = range.get("Worksheet");
    ExportItem item;
    item.sheet = sheet.get("Name").toText();
    if (item.sheet == session::store::sheetName) return;
    const auto place = sheetIndex_.find(item.sheet);
    if (place == sheetIndex_.end()) return;
    if (sheet.get("Parent").get("Name").toText() != bookName_) return;
    if (!name.get("Visible").toBool()) return;

    item.name = itemNameOf(nameText, item.sheet);
    item.order = std::to_string(place->second);
    item.kind = ItemKind::Range;
    noteAreas(nameText, item, range);
    append(std::move(item));
}

/// Of a sheet's own name and the workbook's, the sheet's own is found.
void Walk::noteAreas(const std::string& nameText, const ExportItem& item, const Value& range) {
    const bool isSheetLevel = nameText.find('!') != std::string::npos;
    const session::ItemIdentity key = item.identity();
    if (!isSheetLevel && found_.hasSeveralAreas.contains(key)) return;
    // The address joins its areas by commas and holds no sheet name that could bring in another
    // one.
    found_.hasSeveralAreas[key] = range.get("Address").toText().find(',') != std::string::npos;
}

void Walk::append(ExportItem item) {
    // Nothing can be found again without a name, and the store takes a row without one for the end.
    if (item.name.empty()) return;
    found_.items.push_back(std::move(item));
    advanceLoadBar();
}

void Walk::advanceLoadBar() {
    session::ProgressDisplay& bar = session_.progress;
    // A percentage against a count: the bar starts anew where the two happen to meet. It keeps an
    // expectation of 0 from being divided by, too.
    if (bar.loadingValue() == expected_) {
        bar.clearLoading();
    } else if (expected_ != 0) {
        const auto done = static_cast<std::int64_t>(found_.items.size());
        bar.setLoadingValue(static_cast<int>(done * 100 / expected_));
    }
    session_.host.letEventsRun();
    if (bar.loadingCancelled()) throw session::LoadingCancelled();
}

}  // namespace

bool isOfExcelItself(const std::string& nameText) {
    constexpr std::array<std::string_view, 2> own = {"Print_Titles", "_FilterDatabase"};
    const std::string_view name = session::nameWithoutSheet(nameText);
    return std::any_of(own.begin(), own.end(),
                       [&](std::string_view each) { return office::sameIgnoringCase(each, name); });
}

FoundItems FindItems(session::OfficeSession& session) {
    return Walk(session).run();
}

}  // namespace catalogue

#include <benchmark/benchmark.h>

#include <string>

#include "catalogue/inventory.h"
#include "office_double/suite.h"
#include "session/store_sheet.h"
#include "session/workbook_store.h"
#include "session_doubles/recording_notices.h"
#include "session_doubles/recording_progress.h"
#include "session_doubles/scripted_host.h"

namespace {

/// A workbook of 100 charts whose store has rows for those and for many that have gone.
void fillStore(office_double::DoubleSuite& suite, int rows) {
    auto& book = suite.excel().addWorkbook("Book.xlsx");
    auto& sheet = book.sheet("Data");
    for (int i = 0; i < 100; ++i) sheet.chart("Chart " + std::to_string(i));
    auto& store = book.sheet(std::string(session::store::sheetName));
    for (int row = 1; row <= rows; ++row) {
        const std::string name = "Chart " + std::to_string(row);
        const std::string at = std::to_string(row);
        store.value("A" + at, name).value("B" + at, "Data").value("E" + at, true);
        store.value("F" + at, "Embedded").value("H" + at, name + "Data");
    }
}

}  // namespace

/// The full walk with its merge: the time grows with the rows, not with rows times items.
static void aStoreIsMerged(benchmark::State& state) {
    office_double::DoubleSuite suite;
    fillStore(suite, static_cast<int>(state.range(0)));
    session_doubles::ScriptedHost host;
    session_doubles::RecordingNotices notices;
    session_doubles::RecordingProgress progress;
    for (auto _ : state) {
        session::OfficeSession session(suite, host, notices, progress);
        session.ExcelApp = suite.attach("Excel.Application");
        session.ActiveBook = session.ExcelApp.get("ActiveWorkbook").toObject();
        catalogue::ExportList list;
        catalogue::CountWorkbookItems(session);
        catalogue::LoadItemsToForm(session, list);
        benchmark::DoNotOptimize(list.rows.size());
        progress.calls.clear();
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(aStoreIsMerged)
    ->Arg(100)
    ->Arg(1000)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();

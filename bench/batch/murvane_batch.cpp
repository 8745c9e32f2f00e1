#include "murvane_batch.h"

#include <chrono>
#include <vector>

#include "apps/murvane_export/file_suite.h"
#include "apps/posix_console.h"
#include "apps/posix_host.h"
#include "catalogue/inventory.h"
#include "office/failure_patterns.h"
#include "powerpoint/formats.h"
#include "session/office_session.h"

namespace bench {

namespace {

class NoNotices : public session::NoticePresenter {
    int show(const session::Notice& notice) override {
        throw office::Failure(office::FailureNumber::ApplicationDefined, "bench", notice.message);
    }
};

/// Notes when the items come.
class Stopwatch : public session::ProgressDisplay {
public:
    using Clock = std::chrono::steady_clock;

    [[nodiscard]] std::vector<double> secondsOfItems() const {
        std::vector<double> seconds;
        for (std::size_t i = 1; i < began_.size(); ++i) {
            seconds.push_back(std::chrono::duration<double>(began_[i] - began_[i - 1]).count());
        }
        return seconds;
    }

private:
    void showLoading() override {}
    void setLoadingValue(int) override {}
    [[nodiscard]] int loadingValue() const override { return 0; }
    void clearLoading() override {}
    void unloadLoading() override {}
    void showItem(int, int) override { began_.push_back(Clock::now()); }
    void unload() override {}

    std::vector<Clock::time_point> began_;
};

}  // namespace

BatchCost runMurvaneBatch(libreoffice::LibreOfficeSuite& suite, Deck where,
                          const std::string& workbook, const std::string& output,
                          const MeasuredItems& what) {
    apps::PosixConsole console([] { return false; });
    apps::PosixHost host(console);
    NoNotices notices;
    Stopwatch progress;
    unattended::FileSuite withFiles(suite, host, {}, {.decks = true});
    office::Suite& used = where == Deck::AsFile ? static_cast<office::Suite&>(withFiles) : suite;
    session::OfficeSession session(used, host, notices, progress);
    session.ExcelApp = used.attach("Excel.Application");
    session.PowerPointApp = used.attach("PowerPoint.Application");
    session.ActiveBook = session.ExcelApp.get("Workbooks").call("Open", workbook).toObject();
    const office::Object deck =
        session.PowerPointApp.get("Presentations").call("Add", false).toObject();

    catalogue::ExportList list;
    catalogue::CountWorkbookItems(session);
    catalogue::LoadItemsToForm(session, list);
    // What the bare program takes.
    for (auto& row : list.rows)
        row.checked = what.areRanges ? row.name.starts_with("Range_") : row.isEmbeddedChart();
    session.SessionPresentation = deck;

    BatchCost cost;
    const std::uint64_t callsBefore = suite.remoteCalls();
    const auto start = Stopwatch::Clock::now();
    const auto secondsSince = [](Stopwatch::Clock::time_point begin) {
        return std::chrono::duration<double>(Stopwatch::Clock::now() - begin).count();
    };
    const catalogue::ExportChoices choices{.format = what.format};
    powerpoint::Batch batch{session, list, choices, {}, {.titles = true, .sourceLine = true}};
    cost.items = powerpoint::ExportRows(batch);
    const auto saving = Stopwatch::Clock::now();
    deck.call("SaveCopyAs", output);
    cost.savingSeconds = secondsSince(saving);
    cost.seconds = secondsSince(start);
    cost.secondsOfItems = progress.secondsOfItems();
    cost.remoteCalls = suite.remoteCalls() - callsBefore;

    deck.call("Close");
    session.ActiveBook.call("Close", false);
    return cost;
}

}  // namespace bench

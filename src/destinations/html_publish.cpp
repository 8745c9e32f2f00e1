// The page that Excel writes.

#include <fmt/format.h>

#include <vector>

#include "catalogue/row_objects.h"
#include "destinations/html_export.h"
#include "office/at_end.h"
#include "office/failure_patterns.h"
#include "session/alerts_off.h"
#include "session/store_sheet.h"

namespace destinations {

namespace {

using catalogue::ExportItem;
using office::Object;
using session::OfficeSession;

constexpr std::int32_t rangeSource = 4;
constexpr std::int32_t chartSource = 5;

/// Keeps a workbook's mark of a change over what the program does in between. What the user types
/// meanwhile, in the time that an export takes, is never marked as saved.
class KeptMark {
public:
    explicit KeptMark(const Object& book) : book_(book), wasSaved_(book.get("Saved").toBool()) {}
    KeptMark(const KeptMark&) = delete;
    KeptMark& operator=(const KeptMark&) = delete;
    ~KeptMark() {
        if (wasSaved_) office::asFarAsPossible([this] { book_.put("Saved", true); });
    }

private:
    const Object& book_;
    bool wasSaved_;
};

/// A sheet of empty cells that stand for blank lines: everything on a page is a part of the
/// workbook. It goes again with this object, as does the mark of a change that it made.
class BlankSheet {
public:
    explicit BlankSheet(OfficeSession& session) : session_(session) {
        // A protected workbook takes no sheet; the page is then without blank lines.
        scope_.attempt([this] {
            const KeptMark mark(book());
            // A run that was killed has left it.
            sheet_ = office::orElse(
                [&] { return book().get("Worksheets").get("Item", std::string(name)).toObject(); },
                Object());
            if (sheet_) return;
            sheet_ = session::AddSheetAtEnd(book());
            sheet_.put("Name", std::string(name));
        });
    }
    ~BlankSheet() {
        if (sheet_) office::asFarAsPossible([this] { remove(); });
    }
    BlankSheet(const BlankSheet&) = delete;
    BlankSheet& operator=(const BlankSheet&) = delete;

    static constexpr std::string_view name = "kukuMurvaneReservedName02";

    [[nodiscard]] bool isThere() const { return !scope_.failed(); }

private:
    [[nodiscard]] const Object& book() const { return session_.ActiveBook; }

    void remove() {
        const KeptMark mark(book());
        const session::AlertsOff quiet(session_.ExcelApp);
        sheet_.call("Delete");
    }

    OfficeSession& session_;
    office::ContinueOnFailure scope_;
    Object sheet_;
};

/// The records that a run makes of what it publishes. They go with this object; those that the user
/// has made stay.
class OwnRecords {
public:
    explicit OwnRecords(const Object& book) : all_(book.get("PublishObjects").toObject()) {}
    ~OwnRecords() {
        office::asFarAsPossible([this] {
            office::ContinueOnFailure scope;
            for (const Object& record : own_) scope.attempt([&] { record.call("Delete"); });
        });
    }
    OwnRecords(const OwnRecords&) = delete;
    OwnRecords& operator=(const OwnRecords&) = delete;

    [[nodiscard]] Object add(std::int32_t type, const std::string& page, const std::string& sheet,
                             const std::string& source, const std::string& title) {
        constexpr std::int32_t staticPage = 0;
        own_.push_back(
            all_.call("Add", type, page, sheet, source, staticPage, "", title).toObject());
        return own_.back();
    }

private:
    Object all_;
    std::vector<Object> own_;
};

/// One run of the export.
class Publishing {
public:
    Publishing(OfficeSession& session, const HtmlOptions& options, std::string page)
        : session_(session),
          options_(options),
          page_(std::move(page)),
          blank_(session),
          records_(session.ActiveBook) {
        if (blank_.isThere()) end(publish(rangeSource, std::string(blank_.name), "B1:B4", ""));
    }

    /// The row's record, which is still to be ended: its pictures may be drawn until then.
    [[nodiscard]] Object publishRow(const ExportItem& row) {
        const std::string title = options_.useTitles ? row.caption : std::string();
        Object record = row.isChartSheet() ? publish(chartSource, row.sheet, ownChartOf(row), title)
                                           : publish(rangeSource, row.sheet, addressOf(row), title);
        ++published_;
        const std::int32_t lines = options_.skipLines;
        if (lines > 0 && blank_.isThere())
            end(publish(rangeSource, std::string(blank_.name), fmt::format("A1:A{}", lines), ""));
        return record;
    }
    static void end(const Object& record) { record.put("AutoRepublish", false); }

    [[nodiscard]] int published() const { return published_; }

private:
    /// Nothing for a chart sheet; the name of the row's chart where the sheet has become a
    /// worksheet.
    [[nodiscard]] std::string ownChartOf(const ExportItem& row) {
        const Object home = catalogue::chartOf(session_, row).get("Parent").toObject();
        return home.typeName() == "ChartObject" ? home.get("Name").toText() : std::string();
    }

    /// A chart on a worksheet goes with the cells under it.
    [[nodiscard]] std::string addressOf(const ExportItem& row) {
        if (!row.isEmbeddedChart())
            return catalogue::requiredRange(session_, row).get("Address").toText();
        const Object chart = catalogue::chartObjectOf(session_, row);
        const Object topLeft = chart.get("TopLeftCell").toObject();
        return topLeft.get("Worksheet")
            .get("Range", topLeft, chart.get("BottomRightCell"))
            .get("Address")
            .toText();
    }

    [[nodiscard]] Object publish(std::int32_t type, const std::string& sheet,
                                 const std::string& source, const std::string& title) {
        Object record = records_.add(type, page_, sheet, source, title);
        record.call("Publish", false);
        return record;
    }

    OfficeSession& session_;
    const HtmlOptions& options_;
    std::string page_;
    BlankSheet blank_;
    OwnRecords records_;
    int published_ = 0;
};

}  // namespace

HtmlResult PublishRowsToHtml(RowBatch& batch, const HtmlOptions& options) {
    OfficeSession& session = batch.session;
    HtmlFiles files(session, options);
    HtmlResult result;
    {
        Publishing publishing(session, options, files.page());
        result.walk = walkRowsAhead(batch, [&](const catalogue::TakenRow&, const ExportItem& row) {
            return [record = publishing.publishRow(row)] { Publishing::end(record); };
        });
        if (publishing.published() > 0) {
            result.file = files.keep();
        }
    }
    session.ExcelApp.put("ScreenUpdating", true);
    return result;
}

}  // namespace destinations

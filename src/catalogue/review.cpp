#include "catalogue/review.h"

#include <fmt/format.h>

#include "catalogue/destination_review.h"
#include "catalogue/list_rows.h"
#include "catalogue/row_objects.h"
#include "office/text.h"
#include "panels/markup.h"
#include "panels/notice_page.h"

namespace catalogue {

namespace {

void reviewItems(session::OfficeSession& session, const ExportList& list, ReviewTexts& texts) {
    const std::int32_t checked = CountCheckedRows(list);
    if (checked == 0) {
        AddBlocker(texts.Blockers,
                   "No items are checked. Select at least one chart, range, or object to export.");
        return;
    }
    const std::int32_t exportable = CountExportableRows(session, list);
    if (exportable == 0) {
        AddBlocker(texts.Blockers,
                   "All checked items are on hidden worksheets and cannot be exported. Show those "
                   "sheets or uncheck them.");
    } else if (checked > exportable) {
        AddReviewItem(
            texts.ReviewItems, texts.ReviewLines,
            fmt::format("{} checked item(s) are on hidden worksheets and will be skipped.",
                        checked - exportable));
    }
    RowObjects objects(session);
    for (const ExportRow& row : list.rows) {
        if (!row.Checked || !objects.isMultipleAreaRow(row)) continue;
        AddBlocker(
            texts.Blockers,
            fmt::format("\"{}\" is a multiple-area range and cannot be exported.", row.Text));
    }
}

}  // namespace

void AddBlocker(std::string& blockers, std::string_view text) {
    blockers += panels::element("li", {}, panels::HtmlEscape(text));
}

void AddReviewItem(std::string& reviewItems, std::string& reviewLines, std::string_view text) {
    reviewItems += panels::element("li", {}, panels::HtmlEscape(text));
    reviewLines += fmt::format("- {}\r\n", text);
}

ReviewTexts reviewExport(session::OfficeSession& session, const ExportList& list,
                         const ExportChoices& choices) {
    constexpr int powerPoint = 0;
    constexpr int word = 1;
    ReviewTexts texts;
    reviewItems(session, list, texts);
    if (choices.destination == powerPoint) {
        reviewPowerPoint(session, list, choices, texts.Blockers);
    } else if (choices.destination == word) {
        reviewWord(session, texts.Blockers);
    }
    return texts;
}

ReviewResult PreExportReview(session::OfficeSession& session, const ExportList& list,
                             const ExportChoices& choices) {
    const ReviewTexts texts = reviewExport(session, list, choices);
    if (!texts.Blockers.empty()) {
        panels::ShowExportBlockedNotice(session.notices, texts.Blockers, texts.ReviewItems);
        return ReviewResult::Blocked;
    }
    if (!texts.ReviewLines.empty()) {
        const int reply = session::ShowConfirmNotice(
            session.notices,
            fmt::format("{}\r\n\r\nContinue anyway?", office::trim(texts.ReviewLines)),
            "Export review");
        if (reply == session::answer::cancel) return ReviewResult::Cancelled;
    }
    return ReviewResult::Go;
}

}  // namespace catalogue

#include "catalogue/review.h"

#include <fmt/format.h>

#include <algorithm>
#include <vector>

#include "catalogue/list_rows.h"
#include "catalogue/review_targets.h"
#include "catalogue/row_objects.h"
#include "office/failure_patterns.h"
#include "panels/notices.h"

namespace catalogue {

namespace {

bool isOpen(const office::Object& book) {
    return office::orElse([&] { return !book.get("Name").isBlank(); }, false);
}

void reviewItems(session::OfficeSession& session, const ExportList& list, ReviewTexts& texts) {
    const std::int32_t checked = CountCheckedRows(list);
    if (checked == 0) {
        texts.Blockers.emplace_back(
            "No items are checked. Select at least one chart, range, or object to export.");
        return;
    }
    RowObjects objects(session);
    std::int32_t exportable = 0;
    std::int32_t sheetsGone = 0;
    std::int32_t gone = 0;
    for (const ExportItem& row : list.rows) {
        if (!row.checked) continue;
        if (objects.isExportable(row)) ++exportable;
        if (objects.isSheetGone(row)) ++sheetsGone;
        if (objects.isItemGone(row)) ++gone;
    }
    const std::int32_t hidden = checked - exportable - sheetsGone - gone;
    const auto tellSkipped = [&](std::int32_t count, const char* why) {
        if (count == 0) return;
        AddReviewItem(texts.ReviewItems, fmt::format("{} checked item(s) are {}{}.", count, why,
                                                     exportable > 0 ? " and will be skipped" : ""));
    };
    if (exportable == 0 && !isOpen(session.ActiveBook)) {
        texts.Blockers.emplace_back(
            "The workbook is no longer open. Open it again and start anew.");
    } else if (sheetsGone == checked) {
        texts.Blockers.emplace_back(
            "The sheets of all checked items are no longer in the workbook. They may have "
            "been renamed: check the items under the new names.");
    } else if (gone + sheetsGone == checked) {
        texts.Blockers.emplace_back(
            "The checked items are no longer in the workbook. They may have been renamed: check "
            "the items under the new names.");
    } else {
        if (exportable > 0) {
            tellSkipped(hidden, "on hidden worksheets");
        } else if (gone > 0) {
            texts.Blockers.emplace_back("None of the checked items can be exported.");
            tellSkipped(hidden, "on hidden worksheets");
        } else {
            texts.Blockers.emplace_back(
                "All checked items are on hidden worksheets and cannot be exported. Show those "
                "sheets or uncheck them.");
        }
        tellSkipped(sheetsGone, "on sheets that are no longer in the workbook");
        tellSkipped(gone, "no longer in the workbook");
    }
    for (const ExportItem& row : list.rows) {
        if (!row.checked || !objects.isMultipleAreaRow(row)) continue;
        texts.Blockers.emplace_back(
            fmt::format("\"{}\" is a multiple-area range and cannot be exported.", row.name));
    }
}

}  // namespace

ReviewTexts reviewExport(session::OfficeSession& session, const ExportList& list,
                         const std::vector<ExportChoices>& exports) {
    ReviewTexts texts;
    reviewItems(session, list, texts);
    for (const ExportChoices& choices : exports) {
        if (choices.destination == Destination::PowerPoint) {
            reviewPowerPoint(session, list, choices, texts.Blockers);
            if (texts.Blockers.empty())
                reviewFormat(session, list, choices.format, "PowerPoint.Application", texts);
        } else if (choices.destination == Destination::Word) {
            reviewWord(session, texts.Blockers);
            if (texts.Blockers.empty())
                reviewFormat(session, list, choices.format, "Word.Application", texts);
        }
    }
    return texts;
}

ReviewResult PreExportReview(session::OfficeSession& session, const ExportList& list,
                             const std::vector<ExportChoices>& exports) {
    const ReviewTexts texts = reviewExport(session, list, exports);
    if (!texts.Blockers.empty()) {
        panels::ShowExportBlockedNotice(session.notices, texts.Blockers, texts.ReviewItems);
        return ReviewResult::Blocked;
    }
    if (!texts.ReviewItems.empty()) {
        std::string question;
        for (const std::string& line : texts.ReviewItems) question += "- " + line + "\r\n";
        const int reply = session::ShowConfirmNotice(
            session.notices, question + "\r\n\r\nContinue anyway?", "Export review");
        if (reply == session::answer::cancel) return ReviewResult::Cancelled;
    }
    return ReviewResult::Go;
}

}  // namespace catalogue

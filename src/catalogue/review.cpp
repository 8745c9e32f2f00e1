#include "catalogue/review.h"

#include <fmt/format.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "catalogue/review_looks.h"
#include "catalogue/review_targets.h"
#include "catalogue/row_objects.h"
#include "office/failure_patterns.h"
#include "office/item_remarks.h"
#include "panels/notices.h"

namespace catalogue {

namespace {

bool isOpen(const office::Object& book) {
    return office::orElse([&] { return !book.get("Name").isBlank(); }, false);
}

using Names = std::vector<std::string>;

/// What becomes of the rows that are checked.
struct CheckedRows {
    std::size_t all = 0;
    std::size_t exportable = 0;
    std::size_t hidden = 0;
    Names onGoneSheets;
    Names gone;
};

CheckedRows checkedRows(const ExportList& list, RowObjects& objects) {
    CheckedRows checked;
    for (const ExportItem& row : list.rows) {
        if (!row.checked) continue;
        ++checked.all;
        const auto name = [&] {
            return fmt::format("\"{}\" on sheet \"{}\"", row.shownName(), row.sheet);
        };
        if (objects.isExportable(row))
            ++checked.exportable;
        else if (objects.isSheetGone(row))
            checked.onGoneSheets.push_back(name());
        else if (objects.isItemGone(row))
            checked.gone.push_back(name());
        else
            ++checked.hidden;
    }
    return checked;
}

void reviewChecked(session::OfficeSession& session, const CheckedRows& checked,
                   ReviewTexts& texts) {
    const auto tellSkipped = [&](std::size_t count, const char* why, const Names& names = {}) {
        if (count == 0) return;
        AddReviewItem(texts.ReviewItems,
                      fmt::format("{} checked item(s) are {}{}{}{}.", count, why,
                                  checked.exportable > 0 ? " and will be skipped" : "",
                                  names.empty() ? "" : ": ", office::enumerated(names)));
    };
    if (checked.exportable == 0 && !isOpen(session.ActiveBook)) {
        texts.Blockers.emplace_back(
            "The workbook is no longer open. Open it again and start anew.");
    } else if (checked.onGoneSheets.size() == checked.all) {
        texts.Blockers.emplace_back(
            "The sheets of all checked items are no longer in the workbook. They may have "
            "been renamed: check the items under the new names.");
    } else if (checked.onGoneSheets.size() + checked.gone.size() == checked.all) {
        texts.Blockers.emplace_back(
            "The checked items are no longer in the workbook. They may have been renamed: check "
            "the items under the new names.");
    } else {
        if (checked.exportable > 0) {
            tellSkipped(checked.hidden, "on hidden worksheets");
        } else if (!checked.gone.empty()) {
            texts.Blockers.emplace_back("None of the checked items can be exported.");
            tellSkipped(checked.hidden, "on hidden worksheets");
        } else {
            texts.Blockers.emplace_back(
                "All checked items are on hidden worksheets and cannot be exported. Show those "
                "sheets or uncheck them.");
        }
        tellSkipped(checked.onGoneSheets.size(), "on sheets that are no longer in the workbook",
                    checked.onGoneSheets);
        tellSkipped(checked.gone.size(), "no longer in the workbook", checked.gone);
    }
}

void reviewItems(session::OfficeSession& session, const ExportList& list, RowObjects& objects,
                 ReviewTexts& texts) {
    const CheckedRows checked = checkedRows(list, objects);
    if (checked.all == 0) {
        texts.Blockers.emplace_back(
            "No items are checked. Select at least one chart, range, or object to export.");
        return;
    }
    reviewChecked(session, checked, texts);
    for (const ExportItem& row : list.rows) {
        if (!row.checked || !objects.isMultipleAreaRow(row)) continue;
        texts.Blockers.emplace_back(
            fmt::format("\"{}\" is a multiple-area range and cannot be exported.", row.name));
    }
}

/// The rows that an export takes, as they are pasted.
std::vector<office::PasteItem> takenItems(const session::OfficeSession& session,
                                          const ExportList& list, RowObjects& objects) {
    using office::CopySource;
    std::string file;
    office::ContinueOnFailure().attempt([&] {
        file = session.ActiveBook.get("FullName").toText();
        // A workbook that was never saved has a name and no path.
        if (file == session.ActiveBook.get("Name").toText()) file.clear();
    });
    std::vector<office::PasteItem> items;
    for (const ExportItem& row : list.rows) {
        if (!objects.isExportable(row)) continue;
        items.push_back(
            {.name = row.shownName(),
             .source = {.kind = row.isRange() ? CopySource::Kind::Cells : CopySource::Kind::Chart,
                        .file = file,
                        .sheet = row.sheet,
                        .chart = row.isEmbeddedChart() ? row.name : "",
                        .address = objects.addressOf(row)}});
    }
    std::map<std::string, int> named;
    for (const office::PasteItem& item : items) ++named[item.name];
    for (office::PasteItem& item : items) item.sharesName = named[item.name] > 1;
    return items;
}

}  // namespace

ReviewTexts reviewExport(session::OfficeSession& session, const ExportList& list,
                         const std::vector<ExportChoices>& exports) {
    ReviewTexts texts;
    RowObjects objects(session);
    reviewItems(session, list, objects, texts);
    for (const ExportChoices& choices : exports) {
        if (choices.destination == Destination::PowerPoint)
            reviewPowerPoint(session, list, objects, choices, texts.Blockers);
        else if (choices.destination == Destination::Word)
            reviewWord(session, texts.Blockers);
    }
    if (!texts.Blockers.empty()) return texts;
    const auto items = takenItems(session, list, objects);
    for (const ExportChoices& choices : exports) {
        if (choices.destination == Destination::PowerPoint ||
            choices.destination == Destination::Word)
            reviewFormat(session, items, choices, texts);
    }
    reviewLooks(session, items, exports, texts);
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

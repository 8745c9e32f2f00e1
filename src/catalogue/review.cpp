#include "catalogue/review.h"

#include <fmt/format.h>

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "catalogue/export_run.h"
#include "catalogue/list_rows.h"
#include "catalogue/row_objects.h"
#include "office/failure_patterns.h"
#include "office/text.h"
#include "panels/notices.h"
#include "session/powerpoint_session.h"
#include "session/read_only.h"

namespace catalogue {

namespace {

using Lines = std::vector<std::string>;

void AddReviewItem(Lines& reviewItems, std::string line) {
    if (std::find(reviewItems.begin(), reviewItems.end(), line) == reviewItems.end())
        reviewItems.push_back(std::move(line));
}

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

using Count = std::optional<std::int32_t>;

Count presentationCount(const session::OfficeSession& session) {
    return office::orElse(
        [&] { return Count(session.PowerPointApp.get("Presentations").get("Count").toLong()); },
        Count());
}

Count slideCount(const session::OfficeSession& session) {
    return office::orElse(
        [&] {
            return Count(session.PowerPointApp.get("ActivePresentation")
                             .get("Slides")
                             .get("Count")
                             .toLong());
        },
        Count());
}

/// True if the row's slide number is one of the presentation's.
bool reviewSlideNumber(const ExportItem& row, std::int32_t slides, Lines& blockers) {
    const std::string_view text = office::trim(row.slideNumber);
    if (text.empty()) {
        blockers.emplace_back(fmt::format(
            "Missing slide number for \"{}\". Enter a slide number or uncheck the item.",
            row.name));
        return false;
    }
    const std::int32_t number = slideNumberOf(text);
    if (number < 1) {
        blockers.emplace_back(fmt::format("Invalid slide number for \"{}\".", row.name));
        return false;
    }
    if (number > slides) {
        blockers.emplace_back(
            fmt::format("Slide {} for \"{}\" exceeds the presentation size ({} slides).", number,
                        row.name, slides));
        return false;
    }
    return true;
}

void reviewSlideNumbers(session::OfficeSession& session, const ExportList& list, Lines& blockers) {
    const Count slides = slideCount(session);
    if (!slides) {
        blockers.emplace_back("Could not read the open PowerPoint presentation.");
        return;
    }
    RowObjects objects(session);
    bool anyValid = false;
    for (const ExportItem& row : list.rows) {
        if (!objects.isExportable(row)) continue;
        if (reviewSlideNumber(row, *slides, blockers)) anyValid = true;
    }
    if (blockers.empty() && !anyValid) {
        blockers.emplace_back(
            "No checked items have a valid slide number. Enter slide numbers in the list "
            "before exporting.");
    }
}

/// Attaches, once more if the first reference doesn't answer: a PowerPoint that was closed and
/// opened again leaves one.
Count attachAndCount(session::OfficeSession& session) {
    session::AttachPowerPoint(session);
    if (const Count count = presentationCount(session)) return count;
    session::AttachPowerPoint(session);
    return presentationCount(session);
}

/// What keeps an export to slides from running: PowerPoint, its presentation and, where slides are
/// predefined, the slide numbers of the rows on visible sheets.
void reviewPowerPoint(session::OfficeSession& session, const ExportList& list,
                      const ExportChoices& choices, Lines& blockers) {
    const Count presentations = attachAndCount(session);
    if (!presentations) {
        blockers.emplace_back(
            "PowerPoint is not running. Open PowerPoint and a presentation, then try again.");
        return;
    }
    if (*presentations == 0) {
        blockers.emplace_back(
            "No PowerPoint presentation is open. Open or create a presentation, then try "
            "again.");
        return;
    }
    const auto isReadOnly = [&] {
        return session.PowerPointApp.get("ActivePresentation").get("ReadOnly").toBool();
    };
    if (choices.refusesReadOnly && office::orElse(isReadOnly, false)) {
        blockers.emplace_back(
            "The presentation is opened for reading only. Open it for editing or save it under "
            "another name, then try again.");
        return;
    }
    if (choices.predefinedSlides) reviewSlideNumbers(session, list, blockers);
}

/// What the chosen format can't do for the items that it will be asked for.
void reviewFormat(session::OfficeSession& session, const ExportList& list, ExportFormat format,
                  std::string_view application, ReviewTexts& texts) {
    using office::CopySource;
    if (format == ExportFormat::Pictures) return;
    office::ContinueOnFailure scope;
    std::string file;
    scope.attempt([&] {
        file = session.ActiveBook.get("FullName").toText();
        // A workbook that was never saved has a name and no path.
        if (file == session.ActiveBook.get("Name").toText()) file.clear();
    });
    RowObjects objects(session);
    std::vector<office::PasteItem> items;
    for (const ExportItem& row : list.rows) {
        if (!objects.isExportable(row)) continue;
        items.push_back(
            {.name = row.shownName(),
             .source = {.kind = row.isRange() ? CopySource::Kind::Cells : CopySource::Kind::Chart,
                        .file = file,
                        .sheet = row.sheet,
                        .chart = row.isEmbeddedChart() ? row.name : "",
                        .address = {}}});
        // What a table would lose is found by its cells.
        if (row.isRange() && format == ExportFormat::Editable)
            items.back().source.address = scope.read(
                [&] { return rangeOf(session, row).get("Address").toText(); }, std::string());
    }
    const auto as = format == ExportFormat::Editable   ? office::PasteAs::Default
                    : format == ExportFormat::Embedded ? office::PasteAs::Embedded
                                                       : office::PasteAs::Linked;
    scope.attempt([&] {
        for (const std::string& line : session.suite.remarksOn(application, as, items))
            AddReviewItem(texts.ReviewItems, line);
    });
}

/// What keeps an export to Word from running: Word and its document.
void reviewWord(session::OfficeSession& session, Lines& blockers) {
    office::ContinueOnFailure scope;
    office::Object word;
    scope.attempt([&] { word = session.suite.attach("Word.Application"); });
    if (word.isNothing()) {
        blockers.emplace_back(
            "Word is not running. Open Word with an active document, then try again.");
        return;
    }
    office::Object document;
    scope.attempt([&] { document = word.get("ActiveDocument").toObject(); });
    if (document.isNothing()) {
        blockers.emplace_back("No active Word document is open. Open a document, then try again.");
    } else if (session::isReadOnly(document)) {
        blockers.emplace_back(
            "The Word document is opened for reading only. Open it for editing or save it "
            "under another name, then try again.");
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

#include "catalogue/review_targets.h"

#include <fmt/format.h>

#include <algorithm>
#include <optional>
#include <utility>

#include "catalogue/export_run.h"
#include "catalogue/row_objects.h"
#include "office/failure_patterns.h"
#include "office/text.h"
#include "session/powerpoint_session.h"
#include "session/read_only.h"

namespace catalogue {

namespace {

using Lines = std::vector<std::string>;
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

void reviewSlideNumbers(session::OfficeSession& session, const ExportList& list,
                        RowObjects& objects, Lines& blockers) {
    const Count slides = slideCount(session);
    if (!slides) {
        blockers.emplace_back("Could not read the open PowerPoint presentation.");
        return;
    }
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

}  // namespace

void AddReviewItem(Lines& reviewItems, std::string line) {
    if (std::find(reviewItems.begin(), reviewItems.end(), line) == reviewItems.end())
        reviewItems.push_back(std::move(line));
}

void reviewPowerPoint(session::OfficeSession& session, const ExportList& list, RowObjects& objects,
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
    if (choices.predefinedSlides) reviewSlideNumbers(session, list, objects, blockers);
}

void reviewFormat(session::OfficeSession& session, const std::vector<office::PasteItem>& items,
                  const ExportChoices& choices, ReviewTexts& texts) {
    const ExportFormat format = choices.format;
    if (format == ExportFormat::Pictures) return;
    const char* const application = choices.destination == Destination::PowerPoint
                                        ? "PowerPoint.Application"
                                        : "Word.Application";
    const auto as = format == ExportFormat::Editable   ? office::PasteAs::Default
                    : format == ExportFormat::Embedded ? office::PasteAs::Embedded
                                                       : office::PasteAs::Linked;
    office::ContinueOnFailure().attempt([&] {
        for (const std::string& line : session.suite.remarksOn(application, as, items))
            AddReviewItem(texts.ReviewItems, line);
    });
}

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

}  // namespace catalogue

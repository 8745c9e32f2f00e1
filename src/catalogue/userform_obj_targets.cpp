// The destinations of the main form, and the hand-over of the export to them.

#include <fmt/format.h>

#include <array>
#include <cstddef>
#include <string>

#include "catalogue/review.h"
#include "catalogue/userform_obj.h"
#include "office/failure_patterns.h"
#include "session/powerpoint_session.h"

namespace catalogue {

namespace {

/// "Active presentation: Deck.pptx", or that there is none.
std::string activeLine(const office::Object& application, std::string_view member,
                       std::string_view lead, std::string_view none) {
    office::ContinueOnFailure scope;
    std::string line(none);
    scope.attempt(
        [&] { line = fmt::format("{}{}", lead, application.get(member).get("Name").toText()); });
    return line;
}

}  // namespace

void UserformObj::Option1_Click(int index) {
    for (std::size_t i = 0; i < Option1.size(); ++i) {
        const bool chosen = static_cast<int>(i) == index;
        Option1.at(i).font.bold = chosen;
        Shape1.at(i).visible = chosen;
    }
    PasteExpress.visible = Option1[0].value();
    if (Option1[0].value()) {
        ShowPowerPointTarget();
    } else if (Option1[1].value()) {
        ShowWordTarget();
    } else if (Option1[2].value()) {
        ShowHtmlTarget();
    } else if (Option1[3].value()) {
        ShowPdfTarget();
    } else if (Option1[4].value()) {
        ShowImageTarget();
    }
    Frame2.visible = true;
    TitlesFrame.visible = true;
}

void UserformObj::nameTarget() {
    if (Option1[0].value()) {
        namePresentation();
    } else if (Option1[1].value()) {
        nameDocument();
    }
}

/// False if the application isn't running.
bool UserformObj::namePresentation() {
    session::AttachPowerPoint(session_);
    if (!session_.PowerPointFound) {
        DestinationFile.caption = "PowerPoint is not running";
        return false;
    }
    DestinationFile.caption = activeLine(session_.PowerPointApp, "ActivePresentation",
                                         "Active presentation: ", "No active presentation open");
    return true;
}

bool UserformObj::nameDocument() {
    office::Object word;
    office::ContinueOnFailure scope;
    scope.attempt([&] { word = session_.suite.attach("Word.Application"); });
    if (!word) {
        DestinationFile.caption = "Word is not running";
        return false;
    }
    DestinationFile.caption =
        activeLine(word, "ActiveDocument", "Active document: ", "No active document open");
    return true;
}

void UserformObj::ShowPowerPointTarget() {
    if (!namePresentation()) return;
    showTarget({.newSlidesCaption = "Paste to new created slides",
                .allFormats = true,
                .predefinedSlides = true,
                .pasteExpress = true});
    PasteExpress.caption = "*DoubleClick to paste displayed item only";
}

void UserformObj::ShowWordTarget() {
    if (!nameDocument()) return;
    showTarget({.newSlidesCaption = "Paste to new created pages",
                .allFormats = true,
                .pasteExpress = true});
}

void UserformObj::ShowPdfTarget() {
    showTarget({.newSlidesCaption = "To new PDF file"});
}

void UserformObj::ShowHtmlTarget() {
    DestinationFile.caption = "To a new HTML file ";
    showTarget({.newSlidesCaption = "Paste to new created pages"});
}

void UserformObj::ShowImageTarget() {
    DestinationFile.caption = "Image files";
    showTarget({.newSlidesCaption = "Paste to image files"});
}

void UserformObj::showTarget(const Target& target) {
    // A format that is no longer offered stays the chosen one; PowerPoint and Word ask for it.
    for (std::size_t i = 0; i < OptionFormat.size(); ++i) {
        OptionFormat.at(i).enabled = i == 0 || target.allFormats;
    }
    OptionPredefSlides.enabled = target.predefinedSlides;
    OptionNewSlides.enabled = true;
    OptionNewSlides.font.bold = true;
    OptionNewSlides.setValue(true);
    OptionNewSlides.caption = target.newSlidesCaption;
    PasteExpress.visible = target.pasteExpress;
}

void UserformObj::PasteIT_Click() {
    for (int i = 1; i <= 4; ++i) timer(i).enabled = false;
    activateWorkbook();
    const ReviewResult review = [this] {
        // A second click of the same hand would begin a review within this one.
        const forms::InputOff quiet(*this);
        return PreExportReview(session_, list_, {choices()});
    }();
    if (review != ReviewResult::Go) return;

    keepList();
    if (hooks_.StartExport) hooks_.StartExport(list_, choices());
}

/// The exports take the workbook that is active; the user may have looked at another one since.
void UserformObj::activateWorkbook() {
    office::ContinueOnFailure scope;
    scope.attempt([this] {
        const office::Value active = session_.ExcelApp.get("ActiveWorkbook");
        if (active.get("FullName").toText() != workbook_.get("FullName").toText()) {
            workbook_.call("Activate");
        }
    });
    session_.ActiveBook = workbook_;
}

}  // namespace catalogue

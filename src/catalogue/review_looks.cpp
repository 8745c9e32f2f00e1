#include "catalogue/review_looks.h"

#include <algorithm>
#include <optional>

#include "catalogue/review_targets.h"
#include "office/failure_patterns.h"
#include "office/item_remarks.h"
#include "office/size.h"

namespace catalogue {

namespace {

using office::ItemRemarks;

const ItemRemarks::Text withoutSparklines = {
    "{} will be shown without the sparklines in its cells.",
    "{} will be shown without the sparklines in their cells."};
const ItemRemarks::Text misdrawn = {
    "The picture of {} may have conditional formats wrong that go by cells outside.",
    "The pictures of {} may have conditional formats wrong that go by cells outside."};
const ItemRemarks::Text tooLargeForSlide = {
    "{} is too large for a slide: its text will be too small to read.",
    "{} are too large for a slide: their text will be too small to read."};
const ItemRemarks::Text tooLargeForPage = {
    "{} is too large for a page: its text will be too small to read.",
    "{} are too large for a page: their text will be too small to read."};

/// The whole slide or page that an item comes down to. None where it keeps its size, or flows over
/// several pages.
std::optional<office::Size> roomFor(session::OfficeSession& session, const ExportChoices& choices) {
    if (choices.destination == Destination::PowerPoint) {
        const auto slide = session.PowerPointApp.get("ActivePresentation").get("PageSetup");
        return office::Size{slide.get("SlideWidth").toDouble(),
                            slide.get("SlideHeight").toDouble()};
    }
    if (choices.destination == Destination::Word && choices.format != ExportFormat::Editable) {
        const auto word = session.suite.attach("Word.Application");
        const auto page =
            word.get("ActiveDocument").get("ActiveWindow").get("Selection").get("PageSetup");
        return office::Size{page.get("PageWidth").toDouble(), page.get("PageHeight").toDouble()};
    }
    // A4 across.
    if (choices.destination == Destination::Pdf) return office::Size{842, 595};
    return std::nullopt;
}

bool makesTables(const ExportChoices& choices) {
    return choices.destination == Destination::Html && !choices.areImages;
}

/// What is embedded or linked is the cells themselves.
bool showsPictures(const ExportChoices& choices) {
    if (makesTables(choices)) return false;
    const bool hasFormats =
        choices.destination == Destination::PowerPoint || choices.destination == Destination::Word;
    return !hasFormats || choices.format == ExportFormat::Pictures;
}

bool canBeRead(const office::ShownCells& cells, const office::Size& room) {
    constexpr double smallestPt = 4;
    const double scale = std::min(room.width / std::max(room.width, cells.size.width),
                                  room.height / std::max(room.height, cells.size.height));
    return scale == 1 || cells.lettersPt * scale >= smallestPt;
}

}  // namespace

void reviewLooks(session::OfficeSession& session, const std::vector<office::PasteItem>& items,
                 const std::vector<ExportChoices>& exports, ReviewTexts& texts) {
    office::ContinueOnFailure scope;
    std::vector<office::ShownCells> shown;
    const bool areTables = std::any_of(exports.begin(), exports.end(), makesTables);
    const bool arePictures = std::any_of(exports.begin(), exports.end(), showsPictures);
    scope.attempt([&] { shown = session.suite.shownCells(items); });
    ItemRemarks remarks;
    for (std::size_t i = 0; i < shown.size(); ++i) {
        if (shown[i].haveSparklines) remarks.add(withoutSparklines, items[i]);
        if (arePictures && shown[i].mayBeMisdrawn) remarks.add(misdrawn, items[i]);
    }
    for (const ExportChoices& choices : exports) {
        const auto room =
            scope.read([&] { return roomFor(session, choices); }, std::optional<office::Size>());
        const bool isSlide = choices.destination == Destination::PowerPoint;
        for (std::size_t i = 0; room && i < shown.size(); ++i) {
            if (!canBeRead(shown[i], *room))
                remarks.add(isSlide ? tooLargeForSlide : tooLargeForPage, items[i]);
        }
    }
    for (const std::string& line : remarks.lines()) AddReviewItem(texts.ReviewItems, line);
    if (!areTables) return;
    scope.attempt([&] {
        for (const std::string& line : session.suite.remarksOnPage(items))
            AddReviewItem(texts.ReviewItems, line);
    });
}

}  // namespace catalogue

#include "destinations/word_batch.h"

#include <fmt/format.h>

#include <algorithm>
#include <optional>
#include <string_view>

#include "catalogue/row_copies.h"
#include "catalogue/row_objects.h"
#include "catalogue/row_pictures.h"
#include "destinations/text_area.h"
#include "destinations/word_numbers.h"
#include "office/failure_patterns.h"
#include "session/waits.h"

namespace destinations {

namespace {

using catalogue::ExportFormat;
using catalogue::ExportItem;
using office::arg;
using office::Object;
using session::OfficeSession;

/// One run: what every row needs is looked up once and held.
class WordBatch {
public:
    WordBatch(RowBatch& batch, ExportFormat format, const WordOptions& options)
        : session_(batch.session),
          format_(format),
          options_(options),
          tellsRefused_(format != ExportFormat::Pictures && !batch.onFailedItem),
          document_(session_.SessionDocument),
          selection_(document_.get("ActiveWindow").get("Selection").toObject()) {}

    void exportRow(const ExportItem& row);

private:
    [[nodiscard]] bool floats() const {
        return format_ == ExportFormat::Embedded || format_ == ExportFormat::Linked;
    }
    /// Word makes what it likes of a copy: pictures of another kind come as files.
    [[nodiscard]] bool takesFiles() const {
        return format_ == ExportFormat::Pictures && session_.Pictures != office::PictureKind::Png;
    }
    [[nodiscard]] bool bring(const ExportItem& row);
    void copy(const ExportItem& row);
    void putOnNewPage();
    void InsertPageBreakBlock();
    void TypeParagraph();
    void takeOutNewPage();
    void paste();
    void FinishWordItem(const ExportItem& row, const Object& shape);
    void FitOnPage(const Object& shape);
    void SetLastShapeWidth(const Object& shape);
    [[nodiscard]] bool hasText();
    [[nodiscard]] Object end();
    [[nodiscard]] bool isLastPageEmpty();
    [[nodiscard]] bool isLastPageFree();
    void beginAtMargins();
    /// Of the last page, which all items go behind.
    [[nodiscard]] const TextArea& textArea();

    OfficeSession& session_;
    ExportFormat format_;
    const WordOptions& options_;
    bool tellsRefused_;
    Object document_;
    Object selection_;
    std::optional<TextArea> textArea_;
    /// The picture of the row at hand.
    std::string file_;
    bool hasText_ = false;
    bool mayBeFree_ = true;
    /// What has been written for the row at hand ahead of its paste.
    int newParagraphs_ = 0;
};

void WordBatch::exportRow(const ExportItem& row) {
    const Object shapes = document_.get(floats() ? "Shapes" : "InlineShapes").toObject();
    const std::int32_t before = shapes.get("Count").toLong();
    if (!bring(row)) return;
    mayBeFree_ = false;
    session_.host.letEventsRun();
    // What has come may be a table, which is no shape.
    const std::int32_t count = shapes.get("Count").toLong();
    Object shape;
    if (count > before) {
        shape = shapes.get("Item", count).toObject();
        office::ContinueOnFailure().attempt(
            [&] { shape.put("AlternativeText", catalogue::DescriptionOf(row)); });
    }
    if (!floats()) {
        FinishWordItem(row, shape);
    } else if (shape) {
        SetLastShapeWidth(shape);
    }
}

/// As on slides, an item that can't be had in the form is told, and the others go on.
bool WordBatch::bring(const ExportItem& row) {
    const auto come = [&] {
        copy(row);
        putOnNewPage();
    };
    office::ContinueOnFailure scope;
    if (!tellsRefused_) {
        come();
    } else if (!scope.attempt(come)) {
        const office::Failure& failure = *scope.lastFailure();
        // A full disk is no fault of the item's.
        if (failure.is(office::FailureNumber::PathFileAccess)) throw office::Failure(failure);
        session::ShowWarningNotice(session_.notices,
                                   fmt::format("Could not paste '{}' into the document: {}",
                                               row.shownName(), failure.description()));
        return false;
    }
    return true;
}

void WordBatch::copy(const ExportItem& row) {
    constexpr std::uint32_t arrivedMs = 250;
    if (takesFiles()) {
        file_ = catalogue::TemporaryPictureOf(session_, row);
        if (!catalogue::ExportRowPicture(session_, row, file_))
            office::refuse("Range", catalogue::rangeNotFound(row));
    } else if (format_ == ExportFormat::Pictures) {
        catalogue::CopyRowAsPicture(session_, row);
    } else {
        catalogue::CopyRow(session_, row);
    }
    session::SleepMilliseconds(session_, arrivedMs);
}

/// The page goes again if nothing comes to it: as the last one it would stay empty.
void WordBatch::putOnNewPage() {
    newParagraphs_ = 0;
    try {
        InsertPageBreakBlock();
        if (format_ == ExportFormat::Pictures) TypeParagraph();
        paste();
    } catch (const office::Failure&) {
        takeOutNewPage();
        throw;
    }
}

/// The caret is the user's, who may have gone on writing elsewhere or on this very page.
void WordBatch::takeOutNewPage() {
    office::ContinueOnFailure().attempt([this] {
        end().call("Select");
        if (!isLastPageEmpty()) return;
        for (; newParagraphs_ > 0; --newParagraphs_) selection_.call("TypeBackspace");
    });
}

void WordBatch::TypeParagraph() {
    selection_.call("TypeParagraph");
    ++newParagraphs_;
}

Object WordBatch::end() {
    Object range = document_.get("Range").toObject();
    range.call("Collapse", number::toEnd);
    return range;
}

/// The paragraph that is left behind the break does not break the page once more. Where nothing
/// stands on the last page, none is needed: that page would stay empty.
void WordBatch::InsertPageBreakBlock() {
    const auto appendParagraph = [&] {
        end().call("InsertParagraphAfter");
        ++newParagraphs_;
        end().call("Select");
    };
    end().call("Select");
    const bool isBehindText = hasText();
    const bool isOnFreePage = !isBehindText || isLastPageFree();
    if (isBehindText) appendParagraph();
    beginAtMargins();
    if (isOnFreePage) return;
    end().get("ParagraphFormat").put("PageBreakBefore", true);
    appendParagraph();
    end().get("ParagraphFormat").put("PageBreakBefore", false);
}

/// What is there may be a caption, a title or the item of a list, and even the plain style may have
/// indents, beside which an item as wide as the text would stand over the margin.
void WordBatch::beginAtMargins() {
    const Object format = selection_.get("ParagraphFormat").get("Duplicate").toObject();
    format.put("Style", number::normal);
    for (const char* const indent : {"LeftIndent", "RightIndent", "FirstLineIndent"})
        format.put(indent, 0);
    selection_.put("ParagraphFormat", format);
}

/// In a template that ends with a cover and a break, until the first item has come.
bool WordBatch::isLastPageFree() {
    return mayBeFree_ && isLastPageEmpty();
}

bool WordBatch::isLastPageEmpty() {
    return document_.get("Bookmarks", "\\page").get("Empty").toBool();
}

bool WordBatch::hasText() {
    if (!hasText_) hasText_ = document_.get("Range").get("StoryLength").toLong() > 1;
    return hasText_;
}

void WordBatch::paste() {
    if (takesFiles()) {
        selection_.get("InlineShapes").call("AddPicture", file_, false, true);
        office::ContinueOnFailure().attempt([&] { session_.host.deleteFile(file_); });
    } else if (format_ == ExportFormat::Pictures) {
        selection_.call("Paste");
    } else if (format_ == ExportFormat::Editable) {
        selection_.call("PasteSpecial");
    } else {
        selection_.call("PasteSpecial", arg("Link", format_ == ExportFormat::Linked),
                        arg("DataType", number::oleObject), arg("Placement", number::overTheText),
                        arg("DisplayAsIcon", false));
    }
}

const TextArea& WordBatch::textArea() {
    if (textArea_) return *textArea_;
    textArea_ = textAreaOf(selection_.get("PageSetup"));
    return *textArea_;
}

void WordBatch::FinishWordItem(const ExportItem& row, const Object& shape) {
    if (shape && options_.sameWidth) {
        /// Of the text area: what is higher loses its proportions.
        constexpr double highest = 0.5;
        const TextArea& area = textArea();
        const office::Size natural = sizeOf(shape);
        shape.put("Width", area.width);
        shape.put("Height",
                  std::min(natural.height / natural.width * area.width, area.height * highest));
    } else if (shape) {
        FitOnPage(shape);
    }
    if (options_.caption && !row.caption.empty()) {
        // The caption is a label of its own, which counts by itself. There may be one already.
        office::ContinueOnFailure().attempt(
            [&] { session_.WordApp.get("CaptionLabels").call("Add", row.caption); });
        selection_.call("InsertCaption", arg("Label", row.caption), arg("Title", ""));
    }
    if (shape && options_.shadow) {
        constexpr std::int32_t outsideRightBelow = 21;
        constexpr std::int32_t ofItsSize = 100;
        constexpr std::int32_t blurPt = 15;
        const Object shadow = shape.get("Shadow").toObject();
        shadow.put("Type", outsideRightBelow);
        shadow.put("Size", ofItsSize);
        shadow.put("Blur", blurPt);
    }
}

/// What the paper would cut off becomes as large as the text area has room for. All else keeps its
/// size, over the right margin, too.
void WordBatch::FitOnPage(const Object& shape) {
    const TextArea& area = textArea();
    const office::Size natural = sizeOf(shape);
    if (natural.width > area.toEdge || natural.height > area.room())
        fit(shape, natural, std::min(natural.width, area.width), area);
}

/// As wide as the text, but no higher than its page has room for.
void WordBatch::SetLastShapeWidth(const Object& shape) {
    shape.call("Select");
    const TextArea& area = textArea();
    fit(shape, sizeOf(shape), area.width, area);
}

}  // namespace

bool AttachWord(OfficeSession& session) {
    office::ContinueOnFailure scope;
    session.WordApp.release();
    session.SessionDocument.release();
    scope.attempt([&] { session.WordApp = session.suite.attach("Word.Application"); });
    scope.attempt(
        [&] { session.SessionDocument = session.WordApp.get("ActiveDocument").toObject(); });
    return static_cast<bool>(session.SessionDocument);
}

WalkResult ExportRowsToWord(RowBatch& batch, ExportFormat format, const WordOptions& options) {
    OfficeSession& session = batch.session;
    WordBatch words(batch, format, options);
    if (format != ExportFormat::Pictures) session.ExcelApp.put("ScreenUpdating", true);
    const WalkResult result = walkRows(
        batch, [&](const catalogue::TakenRow&, const ExportItem& row) { words.exportRow(row); });
    session.ExcelApp.put("ScreenUpdating", true);
    office::ContinueOnFailure().attempt(
        [&] { session.SessionDocument.get("ActiveWindow").get("Selection").call("HomeKey"); });
    return result;
}

}  // namespace destinations

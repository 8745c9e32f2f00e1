#include "office/libreoffice/word/writer_document.h"

#include <com/sun/star/container/XEnumerationAccess.hpp>
#include <com/sun/star/document/XDocumentPropertiesSupplier.hpp>
#include <com/sun/star/document/XUndoManagerSupplier.hpp>
#include <com/sun/star/style/BreakType.hpp>
#include <com/sun/star/style/XStyleFamiliesSupplier.hpp>
#include <com/sun/star/text/ControlCharacter.hpp>
#include <com/sun/star/text/XParagraphCursor.hpp>
#include <com/sun/star/text/XTextDocument.hpp>
#include <com/sun/star/text/XTextFieldsSupplier.hpp>
#include <com/sun/star/text/XTextTable.hpp>
#include <com/sun/star/text/XTextTablesSupplier.hpp>
#include <com/sun/star/util/XRefreshable.hpp>
#include <fmt/format.h>
#include <rtl/character.hxx>

#include <algorithm>
#include <utility>

#include "office/failure.h"
#include "office/libreoffice/units.h"
#include "office/libreoffice/word/line_width.h"
#include "office/libreoffice/word/paragraph_change.h"
#include "office/libreoffice/word/undo_group.h"
#include "office/text.h"

namespace libreoffice::word {

namespace {

using css::text::ControlCharacter::APPEND_PARAGRAPH;
using css::text::ControlCharacter::PARAGRAPH_BREAK;

/// The heights of header and footer, which LibreOffice takes from the room between the margins.
struct Bands {
    std::int32_t header = 0;
    std::int32_t footer = 0;
};

Bands bandsOf(const uno::Reference<css::beans::XMultiPropertySet>& page) {
    const NamedValues values(page, {"FooterHeight", "FooterIsOn", "HeaderHeight", "HeaderIsOn"});
    const auto heightIf = [&](const rtl::OUString& isOn, const rtl::OUString& height) {
        return values.get<bool>(isOn) ? values.get<sal_Int32>(height) : 0;
    };
    return {.header = heightIf("HeaderIsOn", "HeaderHeight"),
            .footer = heightIf("FooterIsOn", "FooterHeight")};
}

uno::Reference<css::document::XDocumentProperties> propertiesOf(
    const uno::Reference<css::frame::XModel>& document) {
    return as<css::document::XDocumentPropertiesSupplier>(document)->getDocumentProperties();
}

}  // namespace

WriterDocument::WriterDocument(Desk& desk, uno::Reference<css::frame::XModel> opened)
    : Document(std::move(opened)),
      desk_(desk),
      body_(as<css::text::XTextDocument>(model())->getText()),
      factory_(as<css::lang::XMultiServiceFactory>(model())),
      steps_(as<css::document::XUndoManagerSupplier>(model())->getUndoManager()),
      file_(as<css::frame::XStorable>(model())),
      caret_(model()),
      captions_(model()) {}

std::string WriterDocument::title() {
    return fromUno(propertiesOf(model())->getTitle());
}

void WriterDocument::setTitle(const std::string& title) {
    propertiesOf(model())->setTitle(toUno(title));
}

/// LibreOffice's text leaves out the objects and the tables in it. What is drawn matters only where
/// nothing else is there: each takes calls.
std::int32_t WriterDocument::length() {
    const std::int32_t length = body_->getString().getLength() + tableCount() + 1;
    return length > 1 || !objects().isAnyDrawnBehind(body_->getStart()) ? length : 2;
}

/// Goes back over empty paragraphs to a break ahead of one; a cursor passes over tables unseen, and
/// stops behind one that the text begins with.
/// What is drawn takes calls, and comes last.
bool WriterDocument::isLastPageEmpty() {
    using css::style::BreakType;
    const auto cursor = body_->createTextCursorByRange(body_->getEnd());
    const auto paragraph = as<css::text::XParagraphCursor>(cursor);
    bool isAtBreak = false;
    while (!isAtBreak) {
        if (!paragraph->isStartOfParagraph() || !paragraph->isEndOfParagraph()) return false;
        const NamedValues values(cursor, {"BreakType", "PageDescName"});
        isAtBreak = values.get<BreakType>("BreakType") == BreakType::BreakType_PAGE_BEFORE ||
                    values.any("PageDescName").hasValue();
        if (!isAtBreak && !cursor->goLeft(1, false)) break;
    }
    if (!isAtBreak && tableCount() > 0) return false;
    const RangeRef start = cursor->getStart();
    cursor->gotoEnd(true);
    const auto parts = as<css::container::XEnumerationAccess>(cursor)->createEnumeration();
    while (parts->hasMoreElements()) {
        if (uno::Reference<css::text::XTextTable>(parts->nextElement(), uno::UNO_QUERY).is())
            return false;
    }
    return !objects().isAnyDrawnBehind(start);
}

void WriterDocument::stayUnseen() {
    steps_->lock();
    steps_.clear();
    isUnseen_ = true;
    caret_.keepView();
    // Each change would be laid out for itself.
    model()->lockControllers();
    isLaidOut_ = false;
}

void WriterDocument::layOut() {
    if (objects_) objects_->finishResizing();
    if (!std::exchange(isLaidOut_, true)) model()->unlockControllers();
}

void WriterDocument::moveDown(std::int32_t lines) {
    layOut();
    caret_.goDown(lines);
}

void WriterDocument::moveToLineStart() {
    layOut();
    caret_.goToStartOfLine();
}

void WriterDocument::requireWritable(const uno::Reference<css::beans::XMultiPropertySet>& place,
                                     const std::string& member) {
    if (isReadOnly())
        office::refuse(member, fmt::format("\"{}\" is opened for reading only", name()));
    word::requireWritable(place, member);
}

WriterDocument::CursorRef WriterDocument::writableCursor(const std::string& member) {
    auto place = caret_.copy();
    if (!isUnseen_) requireWritable(as<css::beans::XMultiPropertySet>(place), member);
    return place;
}

TextPlace WriterDocument::writablePlace(const std::string& member) {
    if (caret_.isAtEnd()) return {body_, caret_.sameRange()};
    const auto cursor = writableCursor(member);
    return {cursor->getText(), RangeRef(cursor.get()), !cursor->isCollapsed()};
}

void WriterDocument::appendParagraph() {
    const auto end = body_->getEnd();
    requireWritable(as<css::beans::XMultiPropertySet>(end), "Range.InsertParagraphAfter");
    // A break in an empty paragraph would take what is anchored there along.
    body_->insertControlCharacter(end, APPEND_PARAGRAPH, false);
}

void WriterDocument::changeLastParagraph(const model::ParagraphChange& change) {
    const auto end = body_->createTextCursorByRange(body_->getEnd());
    requireWritable(as<css::beans::XMultiPropertySet>(end), "ParagraphFormat");
    changeParagraph(end, change);
}

void WriterDocument::changeParagraph(const model::ParagraphChange& change) {
    changeParagraph(writableCursor("ParagraphFormat"), change);
}

void WriterDocument::changeParagraph(const CursorRef& paragraph,
                                     const model::ParagraphChange& change) {
    // Whatever else is changed, is changed in one step.
    const UndoGroup group(change.style ? steps_ : nullptr, "Paragraph");
    // What nobody sees has been typed here.
    word::changeParagraph(paragraph, change, isUnseen_ ? Letters::ArePlain : Letters::MayBeDressed);
}

std::string WriterDocument::selectedText() {
    if (caret_.selectedContent().is()) return {};
    return fromUno(caret_.range()->getString());
}

void WriterDocument::removeSelected(const TextPlace& place) {
    if (place.isSelection) caret_.sameRange()->setString(rtl::OUString());
}

void WriterDocument::typeText(const std::string& text) {
    const TextPlace place = writablePlace("Selection.TypeText");
    const UndoGroup group(steps_, "Typing");
    removeSelected(place);
    const auto& range = caret_.sameRange();
    bool isFirst = true;
    for (const std::string& line : office::linesOf(text)) {
        if (!isFirst) place.text->insertControlCharacter(range, PARAGRAPH_BREAK, false);
        // LibreOffice takes these line ends for such lines.
        place.text->insertString(range, toUno(office::replaceAll(line, "\v", "\n")), false);
        isFirst = false;
    }
}

void WriterDocument::typeParagraph() {
    const TextPlace place = writablePlace("Selection.TypeParagraph");
    const UndoGroup group(steps_, "Typing");
    removeSelected(place);
    place.text->insertControlCharacter(caret_.sameRange(), PARAGRAPH_BREAK, false);
}

void WriterDocument::typeBackspace() {
    constexpr const char* member = "Selection.TypeBackspace";
    constexpr const char* nothingToTakeOut = "A letter or an empty paragraph can be taken out here";
    const auto place = writableCursor(member);
    const auto ends = as<css::text::XParagraphCursor>(place);
    const bool isAtStart = ends->isStartOfParagraph();
    if (!place->isCollapsed() || (isAtStart && !ends->isEndOfParagraph()) ||
        !place->goLeft(1, true))
        office::refuse(member, nothingToTakeOut);
    const rtl::OUString taken = place->getString();
    if (!isAtStart && taken.isEmpty()) {
        place->collapseToEnd();
        office::refuse(member, nothingToTakeOut);
    }
    // LibreOffice goes by halves of the letters that take two.
    if (!isAtStart && rtl::isLowSurrogate(taken[0])) place->goLeft(1, true);
    const UndoGroup group(steps_, "Typing");
    place->setString(rtl::OUString());
}

uno::Reference<css::beans::XMultiPropertySet> WriterDocument::pageStyle() {
    const uno::Reference<css::container::XNameAccess> pages(
        as<css::style::XStyleFamiliesSupplier>(model())->getStyleFamilies()->getByName(
            "PageStyles"),
        uno::UNO_QUERY_THROW);
    return {pages->getByName(caret_.pageStyle()), uno::UNO_QUERY_THROW};
}

model::Page WriterDocument::page() {
    const auto style = pageStyle();
    const NamedValues values(
        style, {"BottomMargin", "Height", "LeftMargin", "RightMargin", "TopMargin", "Width"});
    const auto length = [&](const rtl::OUString& name, std::int32_t more = 0) {
        return pointsOf(values.get<sal_Int32>(name) + more);
    };
    const Bands bands = bandsOf(style);
    return {.width = length("Width"),
            .height = length("Height"),
            .leftMargin = length("LeftMargin"),
            .rightMargin = length("RightMargin"),
            .topMargin = length("TopMargin", bands.header),
            .bottomMargin = length("BottomMargin", bands.footer)};
}

double WriterDocument::lineWidth() {
    const double ofPage = page().textWidth();
    if (isUnseen_) return ofPage;
    return lineWidthAt(as<css::beans::XMultiPropertySet>(caret_.copy()), pageStyle(), ofPage);
}

void WriterDocument::setPage(const model::Page& page) {
    static_cast<void>(writablePlace("PageSetup"));
    const auto style = pageStyle();
    const auto length = [](double points, std::int32_t less = 0) {
        return uno::Any(std::max<sal_Int32>(0, hundredthMmOf(points) - less));
    };
    const Bands bands = bandsOf(style);
    const UndoGroup group(steps_, "Page");
    NamedValues({{"BottomMargin", length(page.bottomMargin, bands.footer)},
                 {"Height", length(page.height)},
                 {"IsLandscape", uno::Any(page.width > page.height)},
                 {"LeftMargin", length(page.leftMargin)},
                 {"RightMargin", length(page.rightMargin)},
                 {"TopMargin", length(page.topMargin, bands.header)},
                 {"Width", length(page.width)}})
        .applyTo(style);
}

void WriterDocument::insertCaption(const model::Caption& caption) {
    const TextPlace place = writablePlace("Selection.InsertCaption");
    const UndoGroup group(steps_, "Caption");
    const auto written = captions_.insertBelow(place.range, caption);
    if (!written.isLast) refreshFields();
    caret_.goTo(written.end);
}

WriterObjects& WriterDocument::objects() {
    if (!objects_) objects_ = std::make_unique<WriterObjects>(*this, isUnseen_);
    return *objects_;
}

std::int32_t WriterDocument::objectCount(model::Anchoring anchoring) {
    return objects().count(anchoring);
}

model::TextObjectPtr WriterDocument::objectAt(model::Anchoring anchoring, std::int32_t place) {
    return objects().at(anchoring, place);
}

std::int32_t WriterDocument::tableCount() {
    return as<css::container::XIndexAccess>(
               as<css::text::XTextTablesSupplier>(model())->getTextTables())
        ->getCount();
}

model::TextObjectPtr WriterDocument::selectedObject() {
    auto object = objects().recordOf(caret_.selectedContent());
    return object && object->anchoring() == model::Anchoring::Floating ? object : nullptr;
}

void WriterDocument::activate() {
    markActive();
    raise();
}

void WriterDocument::refreshFields() {
    as<css::util::XRefreshable>(as<css::text::XTextFieldsSupplier>(model())->getTextFields())
        ->refresh();
}

void WriterDocument::saveCopy(const std::string& path) {
    layOut();
    refreshFields();
    writeCopy("Document.SaveCopyAs", path,
              {{".docx", "MS Word 2007 XML"}, {".odt", "writer8"}, {".doc", "MS Word 97"}});
}

void WriterDocument::exportPdf(const std::string& path, const model::PdfOptions& options) {
    layOut();
    refreshFields();
    writeCopy("Document.ExportAsFixedFormat", path, {{".pdf", "writer_pdf_Export"}},
              propertyValues({{"UseTaggedPDF", uno::Any(options.structureTags)},
                              {"ExportBookmarks", uno::Any(options.headingBookmarks)},
                              {"DisplayPDFDocumentTitle", uno::Any(true)},
                              // Pictures stay as crisp as they are.
                              {"UseLosslessCompression", uno::Any(true)},
                              {"ReduceImageResolution", uno::Any(false)}}));
}

}  // namespace libreoffice::word

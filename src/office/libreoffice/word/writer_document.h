#pragma once

#include <com/sun/star/awt/Size.hpp>
#include <com/sun/star/document/XUndoManager.hpp>
#include <com/sun/star/frame/XStorable.hpp>
#include <com/sun/star/graphic/XGraphic.hpp>
#include <com/sun/star/lang/XMultiServiceFactory.hpp>
#include <com/sun/star/text/XText.hpp>

#include <memory>
#include <string>

#include "office/libreoffice/desk.h"
#include "office/libreoffice/document.h"
#include "office/libreoffice/word/writer_captions.h"
#include "office/libreoffice/word/writer_caret.h"
#include "office/libreoffice/word/writer_objects.h"
#include "office/model/word/text_document.h"
#include "office/value.h"

namespace libreoffice::word {

/// A place in a text, or a part of it that is selected.
struct TextPlace {
    uno::Reference<css::text::XText> text;
    RangeRef range;
    bool isSelection = false;

    [[nodiscard]] RangeRef start() const { return isSelection ? range->getStart() : range; }
};

/// An open text, and what automation remembers about it: the objects that have been met.
class WriterDocument : public Document, public model::TextDocument {
public:
    WriterDocument(Desk& desk, uno::Reference<css::frame::XModel> opened);

    [[nodiscard]] Desk& desk() const { return desk_; }
    /// Says that it has no window and never gets one: nobody takes back what is done to it, and
    /// nobody else protects anything or puts objects into it, so nothing of that is asked, and no
    /// lines and pages are made before somebody needs them.
    void stayUnseen();
    [[nodiscard]] bool isUnseen() const { return isUnseen_; }
    [[nodiscard]] WriterCaret& caret() { return caret_; }
    [[nodiscard]] const uno::Reference<css::text::XText>& body() const { return body_; }
    /// A thing of a service ("com.sun.star.text.TextGraphicObject"), not in the text yet.
    [[nodiscard]] uno::Reference<uno::XInterface> createInstance(const char* service) const {
        return factory_->createInstance(rtl::OUString::createFromAscii(service));
    }

    [[nodiscard]] bool isGone() const override { return isClosed(); }
    std::string name() override { return Document::name(); }
    std::string fullName() override { return Document::fullName(); }
    bool isReadOnly() override { return file_->isReadonly(); }
    std::string title() override;
    void setTitle(const std::string& title) override;
    std::int32_t length() override;
    bool isLastPageEmpty() override;

    void appendParagraph() override;
    void changeLastParagraph(const model::ParagraphChange& change) override;
    void selectEnd() override { caret_.goTo(body_->getEnd()); }

    std::string selectedText() override;
    void moveDown(std::int32_t lines) override;
    void moveToLineStart() override;
    void typeText(const std::string& text) override;
    void typeParagraph() override;
    void typeBackspace() override;
    void changeParagraph(const model::ParagraphChange& change) override;
    model::Page page() override;
    double lineWidth() override;
    void setPage(const model::Page& page) override;
    void paste(const office::Copied& copied, office::PasteAs as,
               model::Anchoring anchoring) override;
    void addPicture(const std::string& file) override;
    void insertCaption(const model::Caption& caption) override;

    std::int32_t objectCount(model::Anchoring anchoring) override;
    model::TextObjectPtr objectAt(model::Anchoring anchoring, std::int32_t place) override;
    [[nodiscard]] std::int32_t tableCount();
    model::TextObjectPtr selectedObject() override;
    model::TextObjectPtr pasted() override;

    office::CopiedPtr copied() override { return desk_.clipboard().copied; }
    void activate() override;
    void saveCopy(const std::string& path) override;
    void exportPdf(const std::string& path, const model::PdfOptions& options) override;
    void close() override { Document::close(); }

private:
    using CursorRef = uno::Reference<css::text::XTextCursor>;

    /// `office::Failure` 1004 if nobody may write at a place; `member` is who asks.
    void requireWritable(const uno::Reference<css::beans::XMultiPropertySet>& place,
                         const std::string& member);
    /// A cursor in the caret's place, or around what is selected; failures as above.
    [[nodiscard]] CursorRef writableCursor(const std::string& member);
    /// The same place, to put something there.
    [[nodiscard]] TextPlace writablePlace(const std::string& member);
    /// Takes out what is selected of the text, and leaves the caret there.
    void removeSelected(const TextPlace& place);
    void changeParagraph(const CursorRef& paragraph, const model::ParagraphChange& change);
    void pasteObject(const TextPlace& place, const office::Copied& copied, office::PasteAs as,
                     model::Anchoring anchoring);
    void insertTable(const TextPlace& place, const office::TableLook& table);
    void insertObject(const TextPlace& place, const WriterObjectPtr& object);
    void insertGraphic(const TextPlace& place,
                       const uno::Reference<css::graphic::XGraphic>& graphic,
                       const css::awt::Size& size, model::Anchoring anchoring);
    [[nodiscard]] uno::Reference<css::beans::XMultiPropertySet> pageStyle();
    [[nodiscard]] WriterObjects& objects();
    /// Makes lines and pages of a document that has none yet.
    void layOut();
    /// Fields follow a change at the next pause of the suite only, those of some files not at all.
    void refreshFields();

    Desk& desk_;
    uno::Reference<css::text::XText> body_;
    uno::Reference<css::lang::XMultiServiceFactory> factory_;
    uno::Reference<css::document::XUndoManager> steps_;
    uno::Reference<css::frame::XStorable> file_;
    bool isUnseen_ = false;
    bool isLaidOut_ = true;
    WriterCaret caret_;
    WriterCaptions captions_;
    std::unique_ptr<WriterObjects> objects_;
    /// What the last paste has put into the text; empty for a table.
    ContentRef pasted_;
};

/// LibreOffice's texts under the name of Word.
[[nodiscard]] office::Object applicationObject(const DeskPtr& desk);

}  // namespace libreoffice::word

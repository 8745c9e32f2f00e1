#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "office/model/word/text_document.h"
#include "office/package/document/captions.h"
#include "office/package/document/document_styles.h"
#include "office/package/document/file_object.h"
#include "office/package/drawing/chart_parts.h"
#include "office/package/file_rules.h"
#include "office/package/open_files.h"
#include "office/package/xml.h"

namespace office::package {

namespace word = office::model::word;

/// A document in a package. Its caret stands in a paragraph, and nothing is ever selected but an
/// object.
class FileDocument : public OpenFile<word::TextDocument, FileDocument> {
public:
    /// `path` is empty for a document that has no file yet. `PackageError` if the package is
    /// damaged or no document.
    FileDocument(Package package, std::string path, std::string name, FileRulesPtr rules);

    [[nodiscard]] pugi::xml_node body() const { return body_; }
    [[nodiscard]] ChartParts& charts() { return charts_; }
    /// The part with the text.
    [[nodiscard]] const std::string& mainPart() const { return main_; }
    /// What the names of parts begin with that go beside it: "/word/media/image".
    [[nodiscard]] std::string stem(std::string_view name) const;
    /// A number that no drawing or object has, and none gets again.
    [[nodiscard]] unsigned freeDrawingId();
    /// Whether an object has to bring along the kind of shape that its picture is: none of the text
    /// has so far. It counts as there from now on.
    [[nodiscard]] bool takesShapeType();
    /// Puts a run with an object in at the caret, which stays behind it.
    void insertObject(const std::string& run);
    /// Puts a table in at the caret, which goes behind it.
    void insertTable(const std::string& table);
    /// Says that the text is another than it was.
    void touch() { isChanged_ = true; }
    void select(const FileObjectPtr& object) { selected_ = object; }
    void markGone();

    bool isReadOnly() override { return false; }
    std::string title() override;
    void setTitle(const std::string& title) override;
    std::int32_t length() override;
    bool isLastPageEmpty() override;
    void appendParagraph() override;
    void changeLastParagraph(const word::ParagraphChange& change) override;
    void selectEnd() override;
    /// Nothing but objects can be selected here, and they have no text.
    std::string selectedText() override { return {}; }
    /// A line is a paragraph here: where lines end shows in a window only.
    void moveDown(std::int32_t lines) override;
    void moveToLineStart() override;
    void typeText(const std::string& text) override;
    void typeParagraph() override;
    void typeBackspace() override;
    void changeParagraph(const word::ParagraphChange& change) override;
    word::Page page() override;
    /// Nothing puts the caret into a cell or a frame.
    double lineWidth() override;
    void setPage(const word::Page& page) override;
    void paste(const Copied& copied, PasteAs as, word::Anchoring anchoring) override;
    void addPicture(const std::string& file) override;
    void insertCaption(const word::Caption& caption) override;
    std::int32_t objectCount(word::Anchoring anchoring) override;
    word::TextObjectPtr objectAt(word::Anchoring anchoring, std::int32_t place) override;
    word::TextObjectPtr selectedObject() override;
    word::TextObjectPtr pasted() override;
    /// Also with the ending .docm. A document with macros leaves them out of a .docx.
    void saveCopy(const std::string& path) override;
    /// `Failure` 1004 always: pages are made by a suite.
    void exportPdf(const std::string& path, const word::PdfOptions& options) override;

private:
    /// Where typing goes to: ahead of something in a paragraph, or its end.
    struct Caret {
        pugi::xml_node paragraph;
        pugi::xml_node before;
    };

    [[nodiscard]] pugi::xml_node closingParagraph() const;
    [[nodiscard]] pugi::xml_node lastParagraph();
    [[nodiscard]] pugi::xml_node endOfText() const;
    [[nodiscard]] bool isCaretAtEnd() const;
    void typeInParagraph(const std::string& text);
    /// Puts the caret at the end of a paragraph.
    void placeCaret(pugi::xml_node paragraph);
    /// Calls what puts an object or a table in.
    template <class Put>
    void putAtCaret(word::Anchoring anchoring, const Put& put);
    [[nodiscard]] pugi::xml_node sectionOf(pugi::xml_node block) const;
    [[nodiscard]] std::vector<FileObjectPtr>& objects();
    void readObjects();
    void readDrawingIds();

    Xml xml_;
    pugi::xml_node body_;
    DocumentStyles styles_;
    Captions captions_;
    ChartParts charts_;
    Caret caret_;
    std::optional<std::vector<FileObjectPtr>> objects_;
    std::optional<std::set<unsigned>> drawingIds_;
    unsigned lastDrawingId_ = 0;
    bool hasShapeType_ = false;
    std::weak_ptr<FileObject> selected_;
    std::weak_ptr<FileObject> pasted_;
};

using FileDocumentPtr = std::shared_ptr<FileDocument>;

/// The part that a package is about. `PackageError` NotAPackage if that is no document.
[[nodiscard]] std::string documentPartOf(Package& package);

}  // namespace office::package

#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "office/copied.h"
#include "office/model/part.h"
#include "office/size.h"

/// What the object model of Word asks of what lies below: a suite, or a file. Places count from 1,
/// lengths are points.
namespace office::model::word {

/// The page at a place of the text.
struct Page {
    double width = 0;
    double height = 0;
    double leftMargin = 0;
    double rightMargin = 0;
    double topMargin = 0;
    double bottomMargin = 0;

    [[nodiscard]] double textWidth() const { return width - leftMargin - rightMargin; }
};

enum class Alignment : std::int32_t { Left = 0, Centre = 1, Right = 2, Justified = 3 };

/// The styles that every document has, by Word's numbers.
namespace style {
inline constexpr std::int32_t normal = -1;
inline constexpr std::int32_t heading1 = -2;
inline constexpr std::int32_t caption = -35;
inline constexpr std::int32_t title = -63;
}  // namespace style

/// What of a paragraph is to become different.
struct ParagraphChange {
    /// One of the numbers above. What the paragraph had beside its old style goes.
    std::optional<std::int32_t> style;
    std::optional<bool> breaksPageBefore;
    std::optional<Alignment> alignment;
    std::optional<double> spaceBefore;
    std::optional<double> spaceAfter;
    std::optional<double> leftIndent;
    std::optional<double> rightIndent;
    /// From the left indent.
    std::optional<double> firstLineIndent;
};

/// How an object stands in a document: in a line like a letter, or over the text.
enum class Anchoring { Inline, Floating };

/// A shadow that falls down and to the right.
struct ObjectShadow {
    bool isShown = false;
    /// Of the object's size, in per cent.
    double size = 100;
    double blur = 0;

    bool operator==(const ObjectShadow&) const = default;
};

/// A picture, a chart or an object in a document. `Failure` 1004 from whatever one of its kind
/// can't do.
class TextObject : public Part {
public:
    [[nodiscard]] virtual Anchoring anchoring() const = 0;
    virtual Size size() = 0;
    /// Both sides are above 0. Proportions are the caller's concern.
    virtual void resize(const Size& size) = 0;
    virtual std::string alternativeText() = 0;
    virtual void setAlternativeText(const std::string& text) = 0;
    virtual ObjectShadow shadow() = 0;
    virtual void setShadow(const ObjectShadow& shadow) = 0;
    /// Of one over the text: from the left edge of the text area.
    virtual void setLeft(double left) = 0;
    virtual void select() = 0;
};

using TextObjectPtr = std::shared_ptr<TextObject>;

/// A caption beneath an object, which is one line: "Label 1" and a title behind it. The number is a
/// field that counts the captions of this label from the beginning of the document.
struct Caption {
    std::string label;
    std::string title;
};

/// What a PDF holds beside the pages.
struct PdfOptions {
    /// A bookmark for each heading.
    bool headingBookmarks = false;
    bool structureTags = true;
};

/// An open document. Its caret is where typing goes to; what is selected is replaced by it.
class TextDocument : public Part {
public:
    /// The file's name with its ending; of one never saved, what its window calls it.
    virtual std::string name() = 0;
    /// The file's path; the name alone of one never saved.
    virtual std::string fullName() = 0;
    /// Whether it is opened for reading only.
    virtual bool isReadOnly() = 0;
    /// Its title among the properties of the document.
    virtual std::string title() = 0;
    virtual void setTitle(const std::string& title) = 0;

    /// Characters of the text itself, paragraph ends and objects included: 1 for an empty document,
    /// and more for any other. Objects alone may count together.
    virtual std::int32_t length() = 0;
    /// Whether nothing shows on the page that the text ends on: only empty paragraphs behind a
    /// break. Where that takes a style or the lines to know, it is false.
    virtual bool isLastPageEmpty() = 0;

    // The end of the text.
    /// A new empty paragraph, which looks as the last one does.
    virtual void appendParagraph() = 0;
    virtual void changeLastParagraph(const ParagraphChange& change) = 0;
    /// Puts the caret there.
    virtual void selectEnd() = 0;

    // The caret.
    virtual std::string selectedText() = 0;
    /// One line or more; to the end of the text where there are not so many.
    virtual void moveDown(std::int32_t lines) = 0;
    virtual void moveToLineStart() = 0;
    /// Line ends begin a new paragraph, and "\v" a new line of the same one.
    virtual void typeText(const std::string& text) = 0;
    virtual void typeParagraph() = 0;
    /// Takes out the letter ahead of the caret, or the empty paragraph with it: then the caret goes
    /// to the end of the one ahead. `Failure` 1004 if the caret stands anywhere else.
    virtual void typeBackspace() = 0;
    virtual void changeParagraph(const ParagraphChange& change) = 0;
    virtual Page page() = 0;
    /// How long lines are there: as wide as the page's text, or as a column of it, a cell or a
    /// frame.
    virtual double lineWidth() = 0;
    /// For the whole section. Sides longer than wide make it portrait, the others landscape.
    virtual void setPage(const Page& page) = 0;
    /// Takes the place of what is selected, and leaves the caret behind itself. `PasteAs::Default`
    /// makes a chart or a table that can be edited, of a picture a picture. `Failure` 1004 if it
    /// can't be had in this form; then nothing is put there.
    virtual void paste(const Copied& copied, PasteAs as, Anchoring anchoring) = 0;
    /// Does the same in a line with the picture of a file, in the size that the file says.
    /// `Failure` 53 if there is no such file, 1004 if it holds no picture.
    virtual void addPicture(const std::string& file) = 0;
    /// The object that the last paste made; null if it made a table, or if the object has gone.
    virtual TextObjectPtr pasted() = 0;
    /// A paragraph of its own below the one with the caret, which goes to its end.
    virtual void insertCaption(const Caption& caption) = 0;

    // What stands in the text, in the order of reading.
    virtual std::int32_t objectCount(Anchoring anchoring) = 0;
    /// Null if there is none at this place.
    virtual TextObjectPtr objectAt(Anchoring anchoring, std::int32_t place) = 0;
    /// The object over the text that alone is selected; null if there is none.
    virtual TextObjectPtr selectedObject() = 0;

    /// What a paste finds; null if nothing was copied.
    virtual CopiedPtr copied() = 0;
    /// Makes it the active document and gives its window, if it has one, the foreground.
    virtual void activate() = 0;
    /// Writes a copy; the document keeps its own file, name and state. `Failure` 5 for an ending
    /// that is not taken here, 1004 with the reason if the file does not come about.
    virtual void saveCopy(const std::string& path) = 0;
    /// `Failure` 1004 with the reason if the file does not come about.
    virtual void exportPdf(const std::string& path, const PdfOptions& options) = 0;
    /// Closes without saving.
    virtual void close() = 0;
};

using TextDocumentPtr = std::shared_ptr<TextDocument>;

/// The documents of one application.
class TextDocuments {
public:
    TextDocuments() = default;
    TextDocuments(const TextDocuments&) = delete;
    TextDocuments& operator=(const TextDocuments&) = delete;
    virtual ~TextDocuments() = default;

    virtual std::vector<TextDocumentPtr> open() = 0;
    /// The one that was used last; null with none open.
    virtual TextDocumentPtr active() = 0;
    /// Opens a file, which becomes active; one that is open already is not opened twice. `Failure`
    /// 1004 with the reason.
    virtual TextDocumentPtr load(const std::string& file, bool withWindow) = 0;
    /// A new document of one empty paragraph, which becomes active.
    virtual TextDocumentPtr create(bool withWindow) = 0;
    /// Ends the application, where it was started for a run; documents are not saved. Nothing where
    /// other applications live in the same process.
    virtual void quit() = 0;
};

using TextDocumentsPtr = std::shared_ptr<TextDocuments>;

}  // namespace office::model::word

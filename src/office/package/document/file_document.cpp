#include "office/package/document/file_document.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <utility>

#include "office/failure.h"
#include "office/package/document/core_properties.h"
#include "office/package/document/drawing_markup.h"
#include "office/package/document/page_section.h"
#include "office/package/document/paragraph.h"
#include "office/package/document/pastes.h"
#include "office/package/document/reading_order.h"
#include "office/package/office_file.h"
#include "office/package/part_name.h"
#include "office/text.h"

namespace office::package {

namespace {

/// What a package about a document says that it is, by the kinds of file.
constexpr const char* plainDocument =
    "application/vnd.openxmlformats-officedocument.wordprocessingml.document.main+xml";
constexpr const char* macroDocument = "application/vnd.ms-word.document.macroEnabled.main+xml";
constexpr std::array<std::string_view, 4> documentTypes = {
    plainDocument, macroDocument,
    "application/vnd.openxmlformats-officedocument.wordprocessingml.template.main+xml",
    "application/vnd.ms-word.template.macroEnabledTemplate.main+xml"};

constexpr std::array<std::string_view, 5> blocks = {"p", "tbl", "sdt", "customXml", "altChunk"};

bool isBlock(pugi::xml_node element) {
    return isNamed(element, ns::compatibility, "AlternateContent") ||
           std::any_of(blocks.begin(), blocks.end(),
                       [&](std::string_view name) { return isNamed(element, ns::word, name); });
}

}  // namespace

std::string documentPartOf(Package& package) {
    return mainPartOf(package, documentTypes, "document");
}

FileDocument::FileDocument(Package package, std::string path, std::string name, FileRulesPtr rules)
    : OpenFile(std::move(package), std::move(path), std::move(name), std::move(rules),
               documentPartOf),
      xml_(package_.read(main_), main_),
      body_(childNamed(xml_.root(), ns::word, "body")),
      styles_(package_, main_),
      captions_(body_),
      charts_(package_, folderOf(main_)) {
    if (!isNamed(xml_.root(), ns::word, "document"))
        throw PackageError(Fault::NotAPackage, "it is no document of the usual kind");
    if (!body_) throw PackageError(Fault::Damaged, "it has no text");
    const auto paragraphs = paragraphsIn(body_);
    caret_.paragraph = paragraphs.empty() ? lastParagraph() : paragraphs.front();
    caret_.before = contentOf(caret_.paragraph);
}

std::string FileDocument::stem(std::string_view name) const {
    return fmt::format("{}/{}", folderOf(main_), name);
}

std::string FileDocument::title() {
    return titleOf(package_);
}

void FileDocument::setTitle(const std::string& title) {
    setTitleOf(package_, title);
}

std::int32_t FileDocument::length() {
    std::size_t count = objects().size();
    visitInOrder(body_, [&](pugi::xml_node element) {
        // The end of a row counts as one, too, and so does the text of another file, which Word
        // reads when it opens this one.
        if (isNamed(element, ns::word, "tr") || isNamed(element, ns::word, "altChunk")) ++count;
        return !isNamed(element, ns::word, "p");
    });
    for (const pugi::xml_node paragraph : paragraphsIn(body_)) {
        ++count;
        count += charactersOf(textOf(paragraph)).size();
    }
    return static_cast<std::int32_t>(count);
}

/// Read from the beginning. A section breaks the page behind the paragraph that it ends with.
bool FileDocument::isLastPageEmpty() {
    bool isEmpty = true;
    bool endsSection = false;
    visitInOrder(body_, [&](pugi::xml_node element) {
        const bool isWhole =
            isNamed(element, ns::word, "tbl") || isNamed(element, ns::word, "altChunk");
        const bool isShown = isWhole || showsInLine(element);
        if (isWhole || isNamed(element, ns::word, "p")) {
            const bool beginsSection = std::exchange(endsSection, !!sectionEndIn(element));
            isEmpty = isEmpty || breaksPage(element) ||
                      (beginsSection && beginsOnNewPage(sectionOf(element)));
        }
        isEmpty = (isEmpty && !isShown) || isPageBreak(element);
        return !isShown && !isNamed(element, ns::word, "pPr");
    });
    return isEmpty;
}

/// What has to stay behind all text: the properties of the last section. Null if there are none.
pugi::xml_node FileDocument::endOfText() const {
    for (auto last = body_.last_child(); last; last = last.previous_sibling()) {
        if (last.type() == pugi::node_element)
            return isNamed(last, ns::word, "sectPr") ? last : pugi::xml_node();
    }
    return {};
}

/// Null where a table or a block of controls is the last.
pugi::xml_node FileDocument::closingParagraph() const {
    for (auto last = body_.last_child(); last; last = last.previous_sibling()) {
        if (last.type() == pugi::node_element && isBlock(last))
            return isNamed(last, ns::word, "p") ? last : pugi::xml_node();
    }
    return {};
}

/// Made where none closes the text.
pugi::xml_node FileDocument::lastParagraph() {
    if (const auto last = closingParagraph()) return last;
    touch();
    return addParagraph(body_, endOfText());
}

void FileDocument::appendParagraph() {
    touch();
    addParagraphBehind(lastParagraph());
}

void FileDocument::changeLastParagraph(const word::ParagraphChange& change) {
    touch();
    changeLook(lastParagraph(), change, styles_);
}

/// The properties of the section that something is in: those that come next. Null if there are
/// none.
pugi::xml_node FileDocument::sectionOf(pugi::xml_node block) const {
    while (block.parent() && block.parent() != body_) block = block.parent();
    for (; block; block = block.next_sibling()) {
        if (isNamed(block, ns::word, "sectPr")) return block;
        if (const auto end = sectionEndIn(block)) return end;
    }
    return {};
}

word::Page FileDocument::page() {
    return pageOf(sectionOf(caret_.paragraph));
}

double FileDocument::lineWidth() {
    const auto section = sectionOf(caret_.paragraph);
    return columnWidthOf(section, pageOf(section).textWidth());
}

void FileDocument::setPage(const word::Page& page) {
    touch();
    auto section = sectionOf(caret_.paragraph);
    if (!section) section = insertMarkup(body_, "<w:sectPr/>");
    setPageOf(section, page);
}

void FileDocument::readDrawingIds() {
    std::set<unsigned>& taken = drawingIds_.emplace();
    visitBelow(body_, [&](pugi::xml_node node) {
        const std::string id = node.attribute("id").value();
        if (localName(node) == "docPr") taken.insert(node.attribute("id").as_uint());
        if (id == pictureShapeTypeId) hasShapeType_ = true;
        // "_x0000_i1025"
        const auto number = id.find_last_not_of("0123456789") + 1;
        if (isNamed(node, ns::vml, "shape") && number < id.size()) {
            const double shape = leadingNumber(id.substr(number));
            if (shape > firstVmlShape && shape < UINT32_MAX)
                taken.insert(static_cast<unsigned>(shape) - firstVmlShape);
        }
    });
}

unsigned FileDocument::freeDrawingId() {
    if (!drawingIds_) readDrawingIds();
    do ++lastDrawingId_;
    while (drawingIds_->contains(lastDrawingId_));
    return lastDrawingId_;
}

bool FileDocument::takesShapeType() {
    if (!drawingIds_) readDrawingIds();
    return !std::exchange(hasShapeType_, true);
}

std::vector<FileObjectPtr>& FileDocument::objects() {
    if (!objects_) readObjects();
    return *objects_;
}

/// In the order of reading; those that are known stay themselves.
void FileDocument::readObjects() {
    std::vector<FileObjectPtr> known;
    if (objects_) known = std::move(*objects_);
    objects_.emplace();
    visitInOrder(body_, [&](pugi::xml_node element) {
        if (!isTextObject(element)) return true;
        const auto same = std::find_if(known.begin(), known.end(), [&](const auto& object) {
            return object->element() == element;
        });
        objects_->push_back(same != known.end() ? *same
                                                : std::make_shared<FileObject>(*this, element));
        return false;
    });
}

void FileDocument::insertObject(const std::string& run) {
    touch();
    static_cast<void>(objects());
    const bool isLast = isCaretAtEnd();
    const auto inserted = insertMarkup(caret_.paragraph, run, caret_.before);
    if (!isLast) readObjects();
    visitInOrder(inserted, [&](pugi::xml_node element) {
        const bool isObject = isTextObject(element);
        if (isObject && isLast) objects_->push_back(std::make_shared<FileObject>(*this, element));
        if (isObject)
            pasted_ = *std::find_if(objects_->begin(), objects_->end(), [&](const auto& object) {
                return object->element() == element;
            });
        return !isObject;
    });
}

word::TextObjectPtr FileDocument::pasted() {
    const auto object = pasted_.lock();
    return object && !object->isGone() ? object : nullptr;
}

/// An empty paragraph makes room for a table ahead of itself, and is the one that Word wants behind
/// it.
void FileDocument::insertTable(const std::string& table) {
    touch();
    if (contentOf(caret_.paragraph) || breaksPage(caret_.paragraph) ||
        sectionEndIn(caret_.paragraph)) {
        typeParagraph();
        // The page breaks ahead of the table alone.
        word::ParagraphChange goesOn;
        goesOn.breaksPageBefore = false;
        if (breaksPage(caret_.paragraph)) changeParagraph(goesOn);
    }
    insertMarkup(caret_.paragraph.parent(), table, caret_.paragraph);
}

template <class Put>
void FileDocument::putAtCaret(word::Anchoring anchoring, const Put& put) {
    selected_.reset();
    pasted_.reset();
    // Asked ahead: where the list of styles can't be read, nothing comes into the file.
    const bool isExact =
        anchoring == word::Anchoring::Inline && hasExactLines(caret_.paragraph, styles_);
    put();
    if (isExact && !pasted_.expired()) letLinesGrow(caret_.paragraph);
}

void FileDocument::paste(const Copied& copied, PasteAs as, word::Anchoring anchoring) {
    putAtCaret(anchoring, [&] { pasteInto(*this, copied, as, anchoring); });
}

void FileDocument::addPicture(const std::string& file) {
    putAtCaret(word::Anchoring::Inline, [&] { addPictureTo(*this, file); });
}

void FileDocument::insertCaption(const word::Caption& caption) {
    touch();
    selected_.reset();
    const bool isLast = caret_.paragraph == closingParagraph();
    const auto own = caret_.paragraph;
    if (contentOf(own)) keepWithNext(own);
    const auto added = addParagraph(own.parent(), own.next_sibling());
    setStyle(added, styles_.idOf(word::style::caption));
    captions_.write(added, caption, isLast);
    placeCaret(added);
}

std::int32_t FileDocument::objectCount(word::Anchoring anchoring) {
    const auto& all = objects();
    return static_cast<std::int32_t>(std::count_if(
        all.begin(), all.end(), [&](const auto& one) { return one->anchoring() == anchoring; }));
}

word::TextObjectPtr FileDocument::objectAt(word::Anchoring anchoring, std::int32_t place) {
    for (const FileObjectPtr& object : objects()) {
        if (object->anchoring() == anchoring && --place == 0) return object;
    }
    return nullptr;
}

word::TextObjectPtr FileDocument::selectedObject() {
    const auto object = selected_.lock();
    const bool counts =
        object && !object->isGone() && object->anchoring() == word::Anchoring::Floating;
    return counts ? object : nullptr;
}

void FileDocument::saveCopy(const std::string& path) {
    becomeFileOf(path, {{".docx", plainDocument, false}, {".docm", macroDocument, true}}, package_,
                 main_, "Document");
    styles_.write();
    if (isChanged_) package_.replace(main_, xml_.bytes());
    saveOver(package_, path);
}

void FileDocument::exportPdf(const std::string& /*path*/, const word::PdfOptions& /*options*/) {
    refuse("Document.ExportAsFixedFormat",
           "A document that is open as a file alone has no pages to export");
}

void FileDocument::markGone() {
    isGone_ = true;
    if (!objects_) return;
    for (const auto& object : *objects_) object->markGone();
}

}  // namespace office::package

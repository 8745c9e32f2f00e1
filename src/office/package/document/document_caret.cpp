// The caret of a document: where it goes, and what is typed there.

#include <algorithm>

#include "office/failure.h"
#include "office/package/document/file_document.h"
#include "office/package/document/paragraph.h"
#include "office/package/document/reading_order.h"

namespace office::package {

void FileDocument::selectEnd() {
    selected_.reset();
    placeCaret(lastParagraph());
}

void FileDocument::placeCaret(pugi::xml_node paragraph) {
    caret_ = {paragraph, {}};
}

bool FileDocument::isCaretAtEnd() {
    return !caret_.before && caret_.paragraph == lastParagraph();
}

void FileDocument::moveDown(std::int32_t lines) {
    selected_.reset();
    const auto paragraphs = paragraphsIn(body_);
    const auto own = std::find(paragraphs.begin(), paragraphs.end(), caret_.paragraph);
    const auto below = paragraphs.end() - own;
    if (lines >= below) return selectEnd();
    placeCaret(*(own + lines));
    moveToLineStart();
}

void FileDocument::moveToLineStart() {
    selected_.reset();
    caret_.before = contentOf(caret_.paragraph);
}

void FileDocument::typeText(const std::string& text) {
    touch();
    selected_.reset();
    const auto run = insertMarkup(caret_.paragraph, "<w:r/>", caret_.before);
    std::string line;
    const auto flush = [&] {
        if (line.empty()) return;
        insertMarkup(run, R"(<w:t xml:space="preserve"/>)").text().set(line.c_str());
        line.clear();
    };
    for (const char c : legible(text)) {
        if (c != '\t' && c != '\n' && c != '\r') {
            line += c;
            continue;
        }
        flush();
        if (c != '\r') insertMarkup(run, c == '\t' ? "<w:tab/>" : "<w:br/>");
    }
    flush();
}

void FileDocument::typeParagraph() {
    touch();
    selected_.reset();
    const bool isAtEnd = !caret_.before;
    const auto added = addParagraphBehind(caret_.paragraph);
    const std::string style = styleOf(added);
    moveContent(caret_.before, added);
    // Behind the whole paragraph goes what its style says.
    if (const std::string next = styles_.nextOf(style); isAtEnd && next != style)
        setStyle(added, next);
    // The section goes on to the end of what has been divided.
    if (auto section = sectionEndIn(caret_.paragraph)) {
        auto properties = childNamed(added, ns::word, "pPr");
        if (!properties) properties = insertMarkup(added, "<w:pPr/>", added.first_child());
        properties.append_move(section);
    }
    placeCaret(added);
    moveToLineStart();
}

void FileDocument::typeBackspace() {
    const pugi::xml_node empty = caret_.paragraph;
    const pugi::xml_node ahead = empty.previous_sibling();
    if (contentOf(empty) || sectionEndIn(empty) || !isNamed(ahead, ns::word, "p"))
        refuse("Selection.TypeBackspace", "An empty paragraph alone can be taken out here");
    touch();
    selected_.reset();
    empty.parent().remove_child(empty);
    placeCaret(ahead);
}

void FileDocument::changeParagraph(const word::ParagraphChange& change) {
    touch();
    changeLook(caret_.paragraph, change, styles_);
}

}  // namespace office::package

// The caret of a document: where it goes, and what is typed there.

#include <algorithm>

#include "office/failure.h"
#include "office/package/document/file_document.h"
#include "office/package/document/paragraph.h"
#include "office/package/document/reading_order.h"
#include "office/text.h"

namespace office::package {

namespace {

/// What a paragraph ends with, if that is something typed.
pugi::xml_node lastTypedIn(pugi::xml_node paragraph) {
    const pugi::xml_node last = paragraph.last_child().last_child();
    const bool isTyped = isNamed(last, ns::word, "t") || isNamed(last, ns::word, "tab") ||
                         isNamed(last, ns::word, "br");
    return isTyped ? last : pugi::xml_node();
}

/// Nothing is left of a run that held no more.
void takeOutLastLetter(pugi::xml_node typed) {
    const std::string all = typed.text().get();
    const std::size_t last = all.empty() ? 0 : charactersOf(all).back().bytes.size();
    if (last < all.size()) {
        typed.text().set(all.substr(0, all.size() - last).c_str());
        return;
    }
    pugi::xml_node run = typed.parent();
    run.remove_child(typed);
    if (!run.first_child()) run.parent().remove_child(run);
}

}  // namespace

void FileDocument::selectEnd() {
    selected_.reset();
    placeCaret(lastParagraph());
}

void FileDocument::placeCaret(pugi::xml_node paragraph) {
    caret_ = {paragraph, {}};
}

bool FileDocument::isCaretAtEnd() const {
    return !caret_.before && caret_.paragraph == closingParagraph();
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
    bool isFirst = true;
    for (const std::string& line : linesOf(text)) {
        if (!isFirst) typeParagraph();
        typeInParagraph(line);
        isFirst = false;
    }
}

void FileDocument::typeInParagraph(const std::string& text) {
    touch();
    selected_.reset();
    const auto run = insertMarkup(caret_.paragraph, "<w:r/>", caret_.before);
    std::string line;
    const auto flush = [&] {
        if (line.empty()) return;
        insertMarkup(run, R"(<w:t xml:space="preserve"/>)").text().set(line.c_str());
        line.clear();
    };
    for (const char c : legible(replaceAll(text, "\v", "\n"))) {
        if (c != '\t' && c != '\n') {
            line += c;
            continue;
        }
        flush();
        insertMarkup(run, c == '\t' ? "<w:tab/>" : "<w:br/>");
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

/// Letters go at the end of a paragraph alone.
void FileDocument::typeBackspace() {
    const pugi::xml_node paragraph = caret_.paragraph;
    const pugi::xml_node ahead = paragraph.previous_sibling();
    const bool isEmpty = !contentOf(paragraph);
    if (isEmpty ? sectionEndIn(paragraph) || !isNamed(ahead, ns::word, "p")
                : caret_.before || !lastTypedIn(paragraph))
        refuse("Selection.TypeBackspace", "A letter or an empty paragraph can be taken out here");
    touch();
    selected_.reset();
    if (isEmpty) {
        paragraph.parent().remove_child(paragraph);
        placeCaret(ahead);
    } else {
        takeOutLastLetter(lastTypedIn(paragraph));
    }
}

void FileDocument::changeParagraph(const word::ParagraphChange& change) {
    touch();
    changeLook(caret_.paragraph, change, styles_);
}

}  // namespace office::package

// The text of a shape of a file.

#include <algorithm>
#include <cmath>

#include "office/package/presentation/file_deck.h"
#include "office/package/presentation/file_shape.h"
#include "office/package/presentation/file_slide.h"
#include "office/text.h"

namespace office::package {

namespace {

constexpr std::string_view characterOrder =
    "ln noFill solidFill gradFill blipFill pattFill grpFill effectLst effectDag highlight uLnTx "
    "uLn uFillTx uFill latin ea cs sym hlinkClick hlinkMouseOver rtl extLst";
constexpr std::string_view paragraphOrder = "pPr br r fld endParaRPr";
constexpr std::string_view runOrder = "rPr pPr t";

/// The sizes of characters are hundredths of a point.
constexpr double perPoint = 100;
constexpr double plainSizePt = 18;

constexpr char lineBreak = '\v';

bool isRun(pugi::xml_node node) {
    return isNamed(node, ns::drawing, "r") || isNamed(node, ns::drawing, "fld");
}

bool isBreak(pugi::xml_node node) {
    return isNamed(node, ns::drawing, "br");
}

std::string wordsOf(pugi::xml_node paragraph) {
    std::string words;
    for (const pugi::xml_node part : paragraph.children()) {
        if (isBreak(part)) words += lineBreak;
        if (isRun(part)) words += childNamed(part, ns::drawing, "t").text().get();
    }
    return words;
}

/// Writes the words of a paragraph into it; all its characters get these properties.
void writeWords(pugi::xml_node paragraph, std::string_view words, pugi::xml_node properties) {
    const auto add = [&](const char* markup) {
        const auto part = insertMarkup(paragraph, markup);
        if (properties) copyInto(properties, childInOrder(part, ns::drawing, "rPr", runOrder));
        return part;
    };
    while (!words.empty()) {
        const auto end = std::min(words.find(lineBreak), words.size());
        if (end > 0) {
            const auto run = add("<a:r><a:t/></a:r>");
            childNamed(run, ns::drawing, "t").text().set(legible(words.substr(0, end)).c_str());
        }
        if (end < words.size()) add("<a:br/>");
        words.remove_prefix(std::min(end + 1, words.size()));
    }
}

}  // namespace

powerpoint::ShapeText* FileShape::textFrame() {
    return isNamed(node_, ns::presentation, "sp") ? this : nullptr;
}

pugi::xml_node FileShape::textBody() const {
    return childNamed(node_, ns::presentation, "txBody");
}

std::string FileShape::words() {
    std::string words;
    for (const auto& paragraph : childrenNamed(textBody(), ns::drawing, "p")) {
        if (paragraph != childNamed(textBody(), ns::drawing, "p")) words += '\r';
        words += wordsOf(paragraph);
    }
    return words;
}

/// The new text looks as the first paragraph and the first characters of the old one did.
void FileShape::setWords(const std::string& words) {
    changed();
    auto body = textBody();
    if (!body) {
        body = childInOrder(node_, ns::presentation, "txBody", "txBody extLst");
        insertMarkup(body, "<a:bodyPr/>");
    }
    const auto first = childNamed(body, ns::drawing, "p");
    auto properties = childNamed(first.find_child(isRun), ns::drawing, "rPr");
    if (!properties) properties = childNamed(first, ns::drawing, "endParaRPr");
    const auto ofParagraph = childNamed(first, ns::drawing, "pPr");
    const auto before = childrenNamed(body, ns::drawing, "p");

    for (const std::string& line : linesOf(words)) {
        const auto paragraph = insertMarkup(body, "<a:p/>");
        if (ofParagraph)
            copyInto(ofParagraph, childInOrder(paragraph, ns::drawing, "pPr", paragraphOrder));
        writeWords(paragraph, line, properties);
        if (properties && line.empty())
            copyInto(properties,
                     childInOrder(paragraph, ns::drawing, "endParaRPr", paragraphOrder));
    }
    for (const auto& paragraph : before) body.remove_child(paragraph);
    fitText();
}

bool FileShape::wraps() {
    const auto body = childNamed(textBody(), ns::drawing, "bodyPr");
    return body.attribute("wrap").as_string("square") != std::string_view("none");
}

void FileShape::setWraps(bool wraps) {
    changed();
    attributeFor(childNamed(textBody(), ns::drawing, "bodyPr"), "wrap")
        .set_value(wraps ? "square" : "none");
    fitText();
}

std::vector<pugi::xml_node> FileShape::inherited(std::string_view name) {
    std::vector<pugi::xml_node> found = {childNamed(textBody(), ns::drawing, name)};
    if (const auto own = placeholder()) {
        for (const auto& shape : slide_.deck().layouts().ancestorsOf(*own, slide_.layoutPart()))
            found.push_back(
                childNamed(childNamed(shape, ns::presentation, "txBody"), ns::drawing, name));
    }
    return found;
}

std::vector<pugi::xml_node> FileShape::levelProperties() {
    std::vector<pugi::xml_node> found;
    for (const pugi::xml_node levels : inherited("lstStyle"))
        found.push_back(childNamed(levels, ns::drawing, "lvl1pPr"));
    const auto own = placeholder();
    found.push_back(
        slide_.deck().layouts().masterTextOf(own ? &*own : nullptr, slide_.layoutPart()));
    return found;
}

std::vector<pugi::xml_node> FileShape::characterProperties() {
    const auto paragraph = childNamed(textBody(), ns::drawing, "p");
    std::vector<pugi::xml_node> found = {
        childNamed(paragraph.find_child(isRun), ns::drawing, "rPr"),
        childNamed(paragraph, ns::drawing, "endParaRPr")};
    for (const pugi::xml_node level : levelProperties())
        found.push_back(childNamed(level, ns::drawing, "defRPr"));
    std::erase_if(found, [](pugi::xml_node node) { return !node; });
    return found;
}

Font FileShape::font() {
    Font font{.name = "Calibri", .sizePt = plainSizePt, .colour = 0};
    const auto properties = characterProperties();
    const auto nearest = [&](const auto& says) {
        const auto found = std::find_if(properties.begin(), properties.end(), says);
        return found != properties.end() ? *found : pugi::xml_node();
    };
    if (const auto named =
            nearest([](auto node) { return !!childNamed(node, ns::drawing, "latin"); })) {
        // One with a plus sign stands for a font of the theme.
        const std::string name =
            childNamed(named, ns::drawing, "latin").attribute("typeface").value();
        if (!name.starts_with('+')) font.name = name;
    }
    if (const auto sized = nearest([](auto node) { return !!node.attribute("sz"); }))
        font.sizePt = sized.attribute("sz").as_double() / perPoint;
    if (const auto filled =
            nearest([](auto node) { return !!childNamed(node, ns::drawing, "solidFill"); }))
        font.colour = colourIn(childNamed(filled, ns::drawing, "solidFill"));
    return font;
}

void FileShape::setFont(const powerpoint::FontChange& change) {
    changed();
    const auto apply = [&](pugi::xml_node properties) {
        if (change.sizePt)
            attributeFor(properties, "sz").set_value(std::llround(*change.sizePt * perPoint));
        if (change.colour) {
            for (const char* fill : {"noFill", "gradFill", "blipFill", "pattFill", "grpFill"})
                properties.remove_child(childNamed(properties, ns::drawing, fill));
            auto fill = childInOrder(properties, ns::drawing, "solidFill", characterOrder);
            fill.remove_children();
            insertMarkup(fill, colourMarkup(*change.colour));
        }
        if (!change.name) return;
        for (const char* script : {"latin", "ea", "cs"})
            attributeFor(childInOrder(properties, ns::drawing, script, characterOrder), "typeface")
                .set_value(legible(*change.name).c_str());
    };
    for (const auto& paragraph : childrenNamed(textBody(), ns::drawing, "p")) {
        for (const pugi::xml_node part : paragraph.children()) {
            if (isRun(part) || isBreak(part))
                apply(childInOrder(part, ns::drawing, "rPr", runOrder));
        }
        if (wordsOf(paragraph).empty() || childNamed(paragraph, ns::drawing, "endParaRPr"))
            apply(childInOrder(paragraph, ns::drawing, "endParaRPr", paragraphOrder));
    }
    fitText();
}

}  // namespace office::package

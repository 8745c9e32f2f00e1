#include "office/package/document/paragraph.h"

#include <array>
#include <cmath>

namespace office::package {

namespace {

constexpr std::string_view paragraphOrder =
    "pStyle keepNext keepLines pageBreakBefore framePr widowControl numPr suppressLineNumbers "
    "pBdr shd tabs suppressAutoHyphens kinsoku wordWrap overflowPunct topLinePunct autoSpaceDE "
    "autoSpaceDN bidi adjustRightInd snapToGrid spacing ind contextualSpacing mirrorIndents "
    "suppressOverlap jc textDirection textAlignment textboxTightWrap outlineLvl divId cnfStyle "
    "rPr sectPr pPrChange";

/// What belongs to one paragraph alone: a frame, the end of a section, changes that somebody
/// recorded.
constexpr std::array<std::string_view, 4> ownOfOne = {"framePr", "sectPr", "pPrChange", "cnfStyle"};
constexpr std::array<std::string_view, 5> recorded = {"ins", "del", "moveFrom", "moveTo",
                                                      "rPrChange"};

pugi::xml_node propertiesOf(pugi::xml_node paragraph) {
    return childNamed(paragraph, ns::word, "pPr");
}

pugi::xml_node madeProperties(pugi::xml_node paragraph) {
    if (const auto own = propertiesOf(paragraph)) return own;
    return insertMarkup(paragraph, "<w:pPr/>", paragraph.first_child());
}

pugi::xml_node made(pugi::xml_node paragraph, std::string_view name) {
    return childInOrder(madeProperties(paragraph), ns::word, name, paragraphOrder);
}

void drop(pugi::xml_node holder, std::string_view name) {
    holder.remove_child(childNamed(holder, ns::word, name));
}

void setOn(pugi::xml_node paragraph, std::string_view name) {
    auto flag = made(paragraph, name);
    flag.remove_attributes();
}

const char* nameOfAlignment(word::Alignment alignment) {
    switch (alignment) {
        case word::Alignment::Centre:
            return "center";
        case word::Alignment::Right:
            return "right";
        case word::Alignment::Justified:
            return "both";
        default:
            return "left";
    }
}

void setPageBreak(pugi::xml_node paragraph, bool breaks) {
    if (breaks) return setOn(paragraph, "pageBreakBefore");
    if (styleOf(paragraph).empty()) return drop(propertiesOf(paragraph), "pageBreakBefore");
    // The style may say otherwise.
    setWordValue(made(paragraph, "pageBreakBefore"), "val", "0");
}

void setSpace(pugi::xml_node paragraph, const char* side, double points) {
    auto spacing = made(paragraph, "spacing");
    setWordValue(spacing, side, twipsOf(points));
    // These would be taken in its place.
    for (const char* const other : {"Lines", "Autospacing"})
        spacing.remove_attribute(attributeNamed(spacing, ns::word, std::string(side) + other));
}

void setIndent(pugi::xml_node paragraph, const std::string& side, double points) {
    auto indent = made(paragraph, "ind");
    setWordValue(indent, side, twipsOf(points));
    // Measured by letters it would be taken in its place, also where the style does that.
    setWordValue(indent, side + "Chars", "0");
}

}  // namespace

std::string twipsOf(double points) {
    return std::to_string(std::llround(points * twipsPerPoint));
}

pugi::xml_node addParagraph(pugi::xml_node parent, pugi::xml_node before) {
    return insertMarkup(parent, "<w:p/>", before);
}

pugi::xml_node addParagraphBehind(pugi::xml_node paragraph) {
    auto added = addParagraph(paragraph.parent(), paragraph.next_sibling());
    if (const auto looks = propertiesOf(paragraph)) {
        auto copy = added.append_copy(looks);
        for (const std::string_view name : ownOfOne) drop(copy, name);
        const auto mark = childNamed(copy, ns::word, "rPr");
        for (const std::string_view name : recorded) drop(mark, name);
    }
    return added;
}

std::string styleOf(pugi::xml_node paragraph) {
    return std::string(wordValue(childNamed(propertiesOf(paragraph), ns::word, "pStyle")));
}

void setStyle(pugi::xml_node paragraph, const std::string& style) {
    auto properties = propertiesOf(paragraph);
    keepChildren(properties, [](pugi::xml_node child) {
        return isNamed(child, ns::word, "sectPr") || !isListed(paragraphOrder, localName(child));
    });
    if (!style.empty()) setWordValue(made(paragraph, "pStyle"), "val", style);
}

void changeLook(pugi::xml_node paragraph, const word::ParagraphChange& change,
                DocumentStyles& styles) {
    if (change.style) setStyle(paragraph, styles.idOf(*change.style));
    if (change.breaksPageBefore) setPageBreak(paragraph, *change.breaksPageBefore);
    if (change.alignment)
        setWordValue(made(paragraph, "jc"), "val", nameOfAlignment(*change.alignment));
    if (change.spaceBefore) setSpace(paragraph, "before", *change.spaceBefore);
    if (change.spaceAfter) setSpace(paragraph, "after", *change.spaceAfter);
    if (change.leftIndent) setIndent(paragraph, "left", *change.leftIndent);
    if (change.rightIndent) setIndent(paragraph, "right", *change.rightIndent);
    if (change.firstLineIndent) setIndent(paragraph, "firstLine", *change.firstLineIndent);
}

bool breaksPage(pugi::xml_node paragraph) {
    const auto flag = childNamed(propertiesOf(paragraph), ns::word, "pageBreakBefore");
    const std::string_view said = wordValue(flag);
    return flag && said != "0" && said != "false" && said != "off";
}

void keepWithNext(pugi::xml_node paragraph) {
    setOn(paragraph, "keepNext");
}

bool hasExactLines(pugi::xml_node paragraph, DocumentStyles& styles) {
    const std::string own = lineRuleIn(propertiesOf(paragraph));
    return (own.empty() ? styles.lineRuleOf(styleOf(paragraph)) : own) == "exact";
}

void letLinesGrow(pugi::xml_node paragraph) {
    const auto spacing = made(paragraph, "spacing");
    setWordValue(spacing, "line", "240");
    setWordValue(spacing, "lineRule", "auto");
}

pugi::xml_node contentOf(pugi::xml_node paragraph) {
    return paragraph.find_child([](const pugi::xml_node& child) {
        return child.type() == pugi::node_element && !isNamed(child, ns::word, "pPr");
    });
}

void moveContent(pugi::xml_node first, pugi::xml_node to) {
    while (first) {
        const pugi::xml_node next = first.next_sibling();
        to.append_move(first);
        first = next;
    }
}

pugi::xml_node sectionEndIn(pugi::xml_node paragraph) {
    return childNamed(propertiesOf(paragraph), ns::word, "sectPr");
}

}  // namespace office::package

#include "office/package/document/reading_order.h"

#include "office/package/xml.h"

namespace office::package {

void visitInOrder(pugi::xml_node parent, const std::function<bool(pugi::xml_node)>& goesInto) {
    for (const pugi::xml_node child : parent.children()) {
        if (child.type() != pugi::node_element) continue;
        if (isNamed(child, ns::compatibility, "Fallback")) continue;
        if (goesInto(child)) visitInOrder(child, goesInto);
    }
}

bool isTextObject(pugi::xml_node element) {
    const std::string_view name = localName(element);
    if (name == "inline" || name == "anchor") return isNamed(element, ns::wordDrawing, name);
    return (name == "object" || name == "pict") && isNamed(element, ns::word, name);
}

bool isPageBreak(pugi::xml_node element) {
    return isNamed(element, ns::word, "br") && wordValue(element, "type") == "page";
}

bool showsInLine(pugi::xml_node element) {
    if (localName(element) == "oMath") return true;
    if (!isNamed(element.parent(), ns::word, "r") || isPageBreak(element)) return false;
    const std::string_view name = localName(element);
    return name != "rPr" && name != "lastRenderedPageBreak" && name != "fldChar" &&
           name != "instrText";
}

std::vector<pugi::xml_node> paragraphsIn(pugi::xml_node parent) {
    std::vector<pugi::xml_node> found;
    visitInOrder(parent, [&](pugi::xml_node element) {
        const bool isParagraph = isNamed(element, ns::word, "p");
        if (isParagraph) found.push_back(element);
        return !isParagraph;
    });
    return found;
}

std::string textOf(pugi::xml_node paragraph) {
    std::string text;
    visitInOrder(paragraph, [&](pugi::xml_node element) {
        if (isTextObject(element)) return false;
        if (isNamed(element, ns::word, "t")) text += element.text().get();
        if (isNamed(element, ns::word, "tab")) text += '\t';
        if (isNamed(element, ns::word, "br") && !isPageBreak(element)) text += '\n';
        return !isNamed(element, ns::word, "pPr");
    });
    return text;
}

}  // namespace office::package

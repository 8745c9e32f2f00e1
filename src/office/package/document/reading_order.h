#pragma once

#include <pugixml.hpp>

#include <functional>
#include <string>
#include <vector>

namespace office::package {

/// Shows a visitor all elements below `parent` in the order in which they are read, without what
/// stands for others in older programs. It goes on into an element if the visitor says so.
void visitInOrder(pugi::xml_node parent, const std::function<bool(pugi::xml_node)>& goesInto);

/// Whether an element is a picture, a chart, an object or a shape, which may hold a text of its
/// own.
[[nodiscard]] bool isTextObject(pugi::xml_node element);

/// Whether an element breaks the page in the midst of a paragraph.
[[nodiscard]] bool isPageBreak(pugi::xml_node element);

/// Whether an element is something in a line that a reader sees, or may see.
[[nodiscard]] bool showsInLine(pugi::xml_node element);

/// The paragraphs below an element, those of tables included, those of text boxes not.
[[nodiscard]] std::vector<pugi::xml_node> paragraphsIn(pugi::xml_node parent);

/// The text of a paragraph, with the results of its fields.
[[nodiscard]] std::string textOf(pugi::xml_node paragraph);

}  // namespace office::package

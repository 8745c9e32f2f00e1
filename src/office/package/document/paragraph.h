#pragma once

#include <pugixml.hpp>

#include <string>

#include "office/model/word/text_document.h"
#include "office/package/document/document_styles.h"

namespace office::package {

namespace word = office::model::word;

/// Lengths in a document's text are twentieths of a point.
inline constexpr double twipsPerPoint = 20;
[[nodiscard]] std::string twipsOf(double points);

/// A new empty paragraph behind another, or where there is none as the child of `parent` ahead of
/// `before`. It looks as the other does.
pugi::xml_node addParagraphBehind(pugi::xml_node paragraph);
pugi::xml_node addParagraph(pugi::xml_node parent, pugi::xml_node before);

/// The style that a paragraph names; empty for the plain one.
[[nodiscard]] std::string styleOf(pugi::xml_node paragraph);
/// Gives a paragraph a style and takes away what it has beside its old one.
void setStyle(pugi::xml_node paragraph, const std::string& style);
void changeLook(pugi::xml_node paragraph, const word::ParagraphChange& change,
                DocumentStyles& styles);
[[nodiscard]] bool breaksPage(pugi::xml_node paragraph);
/// Whether the lines have an exact height: Word shows no more of an object than is as high as one.
[[nodiscard]] bool hasExactLines(pugi::xml_node paragraph, DocumentStyles& styles);
/// Lets the lines grow with what stands in them.
void letLinesGrow(pugi::xml_node paragraph);
/// Keeps it on one page with the paragraph behind it.
void keepWithNext(pugi::xml_node paragraph);

/// The first of what a paragraph says; null for an empty one.
[[nodiscard]] pugi::xml_node contentOf(pugi::xml_node paragraph);
/// Moves what stands from `first` on behind all that another paragraph holds.
void moveContent(pugi::xml_node first, pugi::xml_node to);

/// The properties of the section that ends with a paragraph; null if none does.
[[nodiscard]] pugi::xml_node sectionEndIn(pugi::xml_node paragraph);

}  // namespace office::package

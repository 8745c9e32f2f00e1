#pragma once

#include <pugixml.hpp>

#include "office/model/word/text_document.h"

namespace office::package {

/// Whether a section, by its properties (w:sectPr), which may be null, begins with a page.
[[nodiscard]] bool beginsOnNewPage(pugi::xml_node section);
/// Its page.
[[nodiscard]] office::model::word::Page pageOf(pugi::xml_node section);
/// The narrowest of the columns that it divides a width into.
[[nodiscard]] double columnWidthOf(pugi::xml_node section, double width);
void setPageOf(pugi::xml_node section, const office::model::word::Page& page);

}  // namespace office::package

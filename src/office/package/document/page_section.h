#pragma once

#include <pugixml.hpp>

#include "office/model/word/text_document.h"

namespace office::package {

/// The page of a section, by its properties (w:sectPr), which may be null.
[[nodiscard]] office::model::word::Page pageOf(pugi::xml_node section);
void setPageOf(pugi::xml_node section, const office::model::word::Page& page);

}  // namespace office::package

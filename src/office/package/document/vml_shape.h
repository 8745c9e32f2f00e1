#pragma once

#include <pugixml.hpp>

#include <string>

#include "office/model/word/text_document.h"

/// Shapes in the older markup, which Word still keeps its objects in.
namespace office::package {

/// The shape in a w:object or a w:pict; null if there is none.
[[nodiscard]] pugi::xml_node vmlShapeIn(pugi::xml_node holder);
[[nodiscard]] bool floats(pugi::xml_node vmlShape);
[[nodiscard]] Size sizeOf(pugi::xml_node vmlShape);
void resize(pugi::xml_node vmlShape, const Size& size);
/// Of one over the text: from the left edge of the text area, in points.
void setLeft(pugi::xml_node vmlShape, double left);

}  // namespace office::package

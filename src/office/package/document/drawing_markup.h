#pragma once

#include <string>
#include <string_view>

#include "office/model/word/text_document.h"

namespace office::package {

/// A run (w:r) with a drawing around `graphic`, which is a:graphic. `id` is unique in the document.
[[nodiscard]] std::string drawingRun(office::model::word::Anchoring anchoring, unsigned id,
                                     std::string_view name,
                                     const office::model::word::ObjectSize& size,
                                     const std::string& graphic);
/// The graphic of a picture, which a relationship of the document leads to.
[[nodiscard]] std::string pictureGraphic(unsigned id, std::string_view name,
                                         const office::model::word::ObjectSize& size,
                                         const std::string& relationship);

}  // namespace office::package

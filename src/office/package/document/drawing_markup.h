#pragma once

#include <string>
#include <string_view>

#include "office/model/word/text_document.h"

namespace office::package {

/// A run (w:r) with a drawing around `graphic`, which is a:graphic. `id` is unique in the document.
[[nodiscard]] std::string drawingRun(office::model::word::Anchoring anchoring, unsigned id,
                                     std::string_view name, const Size& size,
                                     const std::string& graphic);
/// The graphic of a picture. `blip` is a:blip, which leads to its part.
[[nodiscard]] std::string pictureGraphic(unsigned id, std::string_view name, const Size& size,
                                         const std::string& blip);

/// The graphic of a chart in a part of its own.
[[nodiscard]] std::string chartGraphic(const std::string& relationship);

/// An object that a workbook stands behind.
struct ObjectMarkup {
    /// Unique among drawings and objects of the document.
    unsigned id = 0;
    Size size;
    /// The relationships of its picture and of its workbook.
    std::string preview;
    std::string workbook;
    std::string programId;
    bool isLink = false;
    /// Whether it brings the kind of shape along that its picture is.
    bool hasShapeType = false;
};
inline constexpr const char* pictureShapeTypeId = "_x0000_t75";
/// A run with an object in the older markup, which is the only one that Word has for it.
[[nodiscard]] std::string objectRun(office::model::word::Anchoring anchoring,
                                    const ObjectMarkup& object);
/// What is between the number of an object and that in the name of its shape.
inline constexpr unsigned firstVmlShape = 1024;

}  // namespace office::package

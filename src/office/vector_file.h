#pragma once

#include <string>
#include <string_view>

#include "office/picture_kind.h"

namespace office {

/// A vector picture, as it may go into a document.
struct VectorFile {
    PictureKind kind = PictureKind::Svg;
    std::string bytes;
    /// In points, as the file says.
    double widthPt = 0;
    double heightPt = 0;
};

/// Whether bytes claim to be an EMF, or markup, which of all pictures only an SVG is.
[[nodiscard]] bool looksLikeVectors(std::string_view bytes);

/// Reads an SVG or an EMF, which `what` names in a failure's text. An SVG comes as UTF-8 and
/// without a document type.
///
/// `Failure` 1004 if it is damaged or says no size, and for an SVG that is not a picture alone: one
/// with a script, with what moves or comes from another language, or with a reference to anything
/// but itself and the bitmaps in it.
[[nodiscard]] VectorFile vectorFileOf(std::string bytes, const std::string& what);

}  // namespace office

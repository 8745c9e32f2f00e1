#pragma once

#include <string>

#include "office/model/powerpoint/shape_looks.h"

namespace office::package {

/// A file with a picture, as a package takes it.
struct PictureFile {
    std::string bytes;
    std::string ending;
    std::string contentType;
    /// In points, as the file's density says; 96 pixels to the inch where it says none.
    office::model::powerpoint::Size size;
};

/// `Failure` 53 if there is no such file, 1004 if it holds no PNG.
[[nodiscard]] PictureFile readPicture(const std::string& file);
/// The same from the bytes of a file, which `what` names in the failure's text.
[[nodiscard]] PictureFile pictureOf(std::string bytes, const std::string& what);

}  // namespace office::package

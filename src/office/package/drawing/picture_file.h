#pragma once

#include <future>
#include <string>
#include <string_view>

#include "office/copied.h"
#include "office/package/package.h"
#include "office/picture.h"
#include "office/size.h"

namespace office::package {

/// A file with a picture, as a package takes it.
struct PictureFile {
    std::shared_future<std::string> bytes;
    /// The same as an SVG, which is shown in its stead where that is known; empty if there is none.
    std::string svg;
    /// As `Picture::look` has it.
    std::string look;
    std::string ending;
    std::string contentType;
    /// In points, as the file's density says; 96 pixels to the inch where it says none.
    Size size;
};

/// The file itself, or the picture that is on its way to it. `Failure` 53 if there is neither, 1004
/// if it holds no PNG and no vectors that may go into a document (`vectorFileOf`).
[[nodiscard]] PictureFile readPicture(const std::string& file, PictureFiles* pictures);
/// What was copied. `Failure` 1004 as `Copied::picture` has it.
[[nodiscard]] PictureFile pictureOf(const Copied& copied);

/// Makes it a part of the package, or finds the one that it is already.
[[nodiscard]] std::string addPicturePart(Package& package, std::string_view stem,
                                         PictureFile picture);
/// The same for a part that `owner` refers to; the markup of that, an `a:blip`.
[[nodiscard]] std::string addBlip(Package& package, const std::string& owner,
                                  const std::string& stem, PictureFile picture);

}  // namespace office::package

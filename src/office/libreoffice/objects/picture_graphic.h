#pragma once

#include <com/sun/star/awt/Size.hpp>
#include <com/sun/star/graphic/XGraphic.hpp>

#include <string>

#include "office/libreoffice/connection.h"

namespace libreoffice {

/// A picture file's bytes as shapes show them; null if they can't be read. The suite decodes the
/// pixels when somebody looks at them.
[[nodiscard]] uno::Reference<css::graphic::XGraphic> graphicOf(const Connection& connection,
                                                               const std::string& bytes);

/// A picture from a file.
struct FilePicture {
    uno::Reference<css::graphic::XGraphic> graphic;
    /// On paper, as the file says, in hundredths of a millimetre; 96 pixels to the inch where it
    /// says none.
    css::awt::Size size;
};

/// `office::Failure` 53 if there is no such file, 1004 if it holds no picture, or vectors that may
/// not go into a document (`office::vectorFileOf`).
[[nodiscard]] FilePicture pictureOfFile(const Connection& connection, const std::string& file);

}  // namespace libreoffice

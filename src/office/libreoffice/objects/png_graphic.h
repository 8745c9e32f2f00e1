#pragma once

#include <com/sun/star/graphic/XGraphic.hpp>

#include <string>

#include "office/libreoffice/connection.h"

namespace libreoffice {

/// A PNG file's bytes as shapes show it; null if it can't be read. The suite decodes the pixels
/// when somebody looks at them.
[[nodiscard]] uno::Reference<css::graphic::XGraphic> graphicOfPng(const Connection& connection,
                                                                  const std::string& png);

}  // namespace libreoffice

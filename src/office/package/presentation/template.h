#pragma once

#include <string_view>

namespace office::package {

/// The bytes of a .pptx without slides: 16:9, one master, the eleven layouts that users know. It is
/// made with the program, by template/make-template.
std::string_view emptyDeck();

}  // namespace office::package

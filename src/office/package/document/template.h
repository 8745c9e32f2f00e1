#pragma once

#include <string_view>

namespace office::package {

/// The bytes of a .docx with one empty paragraph on a page of A4. It is made with the program, by
/// template/make-document-template.
std::string_view emptyDocument();

}  // namespace office::package

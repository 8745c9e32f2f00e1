#pragma once

#include <string>
#include <string_view>

/// What becomes of a page of help on its way into the reader. Pages are texts of markup.
namespace panels {

/// The page with the style element that fits it to the reader: before the end of its head, or in
/// front of a page that has none.
[[nodiscard]] std::string injectHelpStyle(std::string_view page);

/// The page with `folder`, the address of a folder, as the place that its pictures and links start
/// from: the reader shows a copy of it from elsewhere.
[[nodiscard]] std::string withBase(std::string_view page, std::string_view folder);

/// A page that says something in place of a page of help. "&", "<" and ">" are escaped, and each
/// CR LF is a line break.
[[nodiscard]] std::string helpMessagePage(std::string_view message);

/// What the page calls itself; empty if it doesn't.
[[nodiscard]] std::string titleOfPage(std::string_view page);

}  // namespace panels

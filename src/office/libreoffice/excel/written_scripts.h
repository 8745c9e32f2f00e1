#pragma once

#include <string_view>

namespace libreoffice::excel {

/// Whether a text, in UTF-8, has characters whose order, shape or pictures one program makes
/// otherwise than the next: right-to-left and Indic scripts, what is composed, emoji.
[[nodiscard]] bool isIntricate(std::string_view text);

/// Whether the first character of a text, in UTF-8, is of a script that is read from the right,
/// Hebrew, Arabic and their like: the suite goes by it where a text is not aligned.
[[nodiscard]] bool beginsFromRight(std::string_view text);

}  // namespace libreoffice::excel

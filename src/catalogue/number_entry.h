#pragma once

#include <string>
#include <string_view>

namespace catalogue {

/// Whether a text is a number as it is typed: digits, one sign, one decimal separator, an exponent.
[[nodiscard]] bool isNumericEntry(std::string_view text);

/// The filter of a numeric text box, run at each change: a text that is neither empty nor a number
/// nor a lone "-" loses its last character. A long wrong text therefore goes away one by one, as
/// each cut is a change again.
[[nodiscard]] std::string Validate_Number_Entry(const std::string& text);

}  // namespace catalogue

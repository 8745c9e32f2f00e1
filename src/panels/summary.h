#pragma once

#include <string>
#include <string_view>

namespace panels {

/// The summary block of a message that says how many objects go where, such as the three lines "3
/// object(s) will be pasted to", "Deck.pptx", "as Pictures". Empty if the message isn't of that
/// shape.
[[nodiscard]] std::string BuildSummaryHtml(std::string_view message,
                                           std::string_view destinationWord);

}  // namespace panels

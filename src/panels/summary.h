#pragma once

#include <string>
#include <string_view>

namespace panels {

/// The summary block of a message that says how many objects go where, such as the three lines "3
/// object(s) will be pasted to", "Deck.pptx", "as Pictures". Empty if the message isn't of that
/// shape.
[[nodiscard]] std::string BuildSummaryHtml(std::string_view message,
                                           std::string_view destinationWord);

/// The count ahead of " object" or " image file" in a message's first line, or empty. `lead`
/// becomes the text from that noun on; it stays as it was where there is no count.
[[nodiscard]] std::string ParseCountPhrase(std::string_view line, std::string& lead);

/// What follows "inserted in", "saved to" or "exported to" in a message's first line, or empty.
/// `lead` becomes the text ahead of the phrase; it stays as it was where there is none.
[[nodiscard]] std::string ParseDestinationPhrase(std::string_view line, std::string& lead);

/// The line of badges from Excel to the destination; empty for an unknown word.
[[nodiscard]] std::string BuildFlowHtml(std::string_view destinationWord);

}  // namespace panels

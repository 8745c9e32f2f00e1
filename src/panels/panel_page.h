#pragma once

#include <string>
#include <string_view>

namespace panels {

/// What the page of an options dialog's panel is made from.
struct ActionPanel {
    std::string message;
    std::string kind;             ///< of a notice: colours the frame
    std::string footer;           ///< a line at the foot, or empty
    std::string destinationWord;  ///< "PowerPoint", "Word", "PDF", "HTML" or "Images"
    std::string options;          ///< finished markup, or empty
    std::string tools;            ///< finished markup, or empty; stands above the options
};

/// The whole page, one line without script or any reference to the outside. The message becomes a
/// summary where it has that shape, and paragraphs otherwise.
[[nodiscard]] std::string BuildActionPanelHtml(const ActionPanel& panel);

}  // namespace panels

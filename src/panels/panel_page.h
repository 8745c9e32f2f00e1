#pragma once

#include <string>
#include <string_view>

/// The page of an options dialog's panel: its blocks, and the private links by which it tells its
/// form what was clicked. Texts are escaped here; what a parameter calls buttons, rows or chips is
/// finished markup. A block that is not enabled has no link, so that a click on it goes nowhere.
namespace panels {

/// What the page of an options dialog's panel is made from.
struct ActionPanel {
    std::string message;
    std::string kind;             ///< of a notice: colours the frame
    std::string destinationWord;  ///< "PowerPoint", "Word", "PDF", "HTML" or "Images"
    std::string options;          ///< finished markup, or empty
    std::string tools;            ///< finished markup, or empty; stands above the options
};

/// The whole page, one line without script or any reference to the outside. The message becomes a
/// summary where it has that shape, and paragraphs otherwise.
[[nodiscard]] std::string BuildActionPanelHtml(const ActionPanel& panel);

/// A link to "murvane://action/" + key. `iconClass` is a class name of the style sheet and goes in
/// as it stands.
[[nodiscard]] std::string ToolButtonHtml(std::string_view key, std::string_view label,
                                         std::string_view iconClass, std::string_view tooltip);
/// Empty if the buttons are blank.
[[nodiscard]] std::string ToolBarHtml(std::string_view buttons);

/// A link to "murvane://toggle/" + key.
[[nodiscard]] std::string OptionRowHtml(std::string_view key, std::string_view label, bool checked,
                                        bool enabled);
/// Empty if the rows are blank; without its title line if the title is.
[[nodiscard]] std::string OptionsBlockHtml(std::string_view title, std::string_view rows);

/// A link to "murvane://select/" + group + "/" + key.
[[nodiscard]] std::string ChoiceChipHtml(std::string_view group, std::string_view key,
                                         std::string_view label, bool selected, bool enabled);
/// Empty if the chips are blank.
[[nodiscard]] std::string ChoiceGroupHtml(std::string_view title, std::string_view chips);

/// A text box, which is read back by its id.
[[nodiscard]] std::string FieldRowHtml(std::string_view id, std::string_view label,
                                       std::string_view value, std::string_view suffix,
                                       bool enabled);

/// The same for a text of several lines.
[[nodiscard]] std::string TextAreaRowHtml(std::string_view id, std::string_view label,
                                          std::string_view value, bool enabled);

/// The links. Each function gives the key behind its prefix in the case it came in, or nothing for
/// any other address. The prefix counts wherever it stands and in any case; what follows a "?" or a
/// "#" is no part of the key.

/// "murvane://action/" + key
[[nodiscard]] std::string ActionKeyFromUrl(std::string_view url);
/// "murvane://toggle/" + key
[[nodiscard]] std::string ToggleKeyFromUrl(std::string_view url);
/// "murvane://select/" + group + "/" + key: group and key as they stand, with the slash.
[[nodiscard]] std::string SelectKeyFromUrl(std::string_view url);

}  // namespace panels

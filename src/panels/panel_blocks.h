#pragma once

#include <string>
#include <string_view>

/// The blocks of an options dialog's panel. Texts are escaped here; what a parameter calls buttons,
/// rows or chips is finished markup. A block that is not enabled has no link, so that a click on it
/// goes nowhere.
namespace panels {

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

}  // namespace panels

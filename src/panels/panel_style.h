#pragma once

#include <string>

/// The style sheet of the action panels, in three pieces that are joined in this order. It is drawn
/// for a panel some 600 pixels wide.
namespace panels {

/// The frame, the kinds, the summary and its badges.
[[nodiscard]] std::string PanelCssBase();
/// Option rows, fields and chips.
[[nodiscard]] std::string PanelCssOptions();
[[nodiscard]] std::string PanelCssTools();

}  // namespace panels

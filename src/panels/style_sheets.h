#pragma once

#include <string>

namespace panels {

/// Of the action panels; drawn for a panel some 600 pixels wide.
[[nodiscard]] std::string PanelCss();

/// Of the notices: the card, its coloured hero, and the classes of pages with lists or review
/// items.
[[nodiscard]] std::string NoticeCss();

}  // namespace panels

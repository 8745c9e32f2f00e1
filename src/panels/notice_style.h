#pragma once

#include <string>

namespace panels {

/// The style sheet of the notices: the card, its coloured hero, and the classes of pages with lists
/// or review items.
[[nodiscard]] std::string NoticeCss();

}  // namespace panels

#pragma once

#include <span>
#include <string>
#include <string_view>

namespace panels {

/// One rule of a style sheet.
struct StyleRule {
    std::string_view selector;
    /// As they stand between the braces.
    std::string_view declarations;
};

/// The rules one after another, without a line break.
[[nodiscard]] std::string styleSheet(std::span<const StyleRule> rules);

}  // namespace panels

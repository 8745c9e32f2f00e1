#include "panels/style_sheet.h"

namespace panels {

std::string styleSheet(std::span<const StyleRule> rules) {
    std::string text;
    for (const StyleRule& rule : rules) {
        text += rule.selector;
        text += '{';
        text += rule.declarations;
        text += '}';
    }
    return text;
}

}  // namespace panels

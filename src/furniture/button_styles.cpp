#include "furniture/button_styles.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "furniture/palette.h"
#include "office/text.h"

namespace furniture {

namespace {

void style(forms::CommandButton& button, std::string_view caption, forms::Colour ground,
           double sizePt) {
    button.caption = caption;
    button.backColour = ground;
    button.font = {.name = "Tahoma", .sizePt = sizePt, .bold = true};
}

}  // namespace

void StyleAccentButton(forms::CommandButton& button, std::string_view caption, double sizePt) {
    style(button, caption, palette::ThemeAccentButton, sizePt);
}

void StyleNeutralButton(forms::CommandButton& button, std::string_view caption, double sizePt) {
    style(button, caption, palette::ThemeNeutralButton, sizePt);
}

namespace {

/// Close, cancel and help.
void StyleQuietButton(forms::CommandButton& button, std::string_view caption, double sizePt) {
    style(button, caption, palette::ThemeQuietButton, sizePt);
}

void StyleHelpButton(forms::CommandButton& button) {
    style(button, "?", palette::ThemeQuietButton, 8.25);
}

void StyleArrowButton(forms::CommandButton& button, bool up) {
    // The digits are the arrow glyphs of this font.
    style(button, up ? "5" : "6", palette::ThemeNeutralButton, 10);
    button.font.name = "Marlett";
    button.font.bold = false;
}

using Style = void (*)(forms::CommandButton& button, std::string_view caption, double sizePt);

enum class Words { Given, Own };

/// How a button of this name looks; `caption` stands in for its own if that is blank.
struct Rule {
    std::string_view name;
    Style style;
    Words words;
    std::string_view caption;
    double sizePt;
};

constexpr std::array<Rule, 10> rules = {{
    {"pasteit", StyleAccentButton, Words::Given, "Continue  >", 12},
    {"continueok", StyleAccentButton, Words::Given, "Continue  >", 10.5},
    {"styles", StyleAccentButton, Words::Own, "Apply", 10},
    {"closelayout", StyleAccentButton, Words::Own, "Apply", 10},
    {"about", StyleAccentButton, Words::Own, "Apply", 10},
    {"btnclose", StyleAccentButton, Words::Own, "Apply", 10},
    {"addcaption", StyleNeutralButton, Words::Given, "Caption", 9},
    {"btncancel", StyleQuietButton, Words::Own, "Close", 10.5},
    {"cmdcancel", StyleQuietButton, Words::Own, "Close", 10.5},
    {"btnok", StyleAccentButton, Words::Own, "OK", 10.5},
}};
constexpr Rule otherButtons = {{}, StyleNeutralButton, Words::Own, "OK", 9.75};

void apply(const Rule& rule, forms::CommandButton& button) {
    std::string caption(rule.words == Words::Own ? office::trim(button.caption) : "");
    if (caption.empty()) caption = rule.caption;
    rule.style(button, caption, rule.sizePt);
}

void themeButton(forms::CommandButton& button) {
    const std::string name = office::lowerCase(button.name());
    const auto* rule =
        std::find_if(rules.begin(), rules.end(), [&](const Rule& one) { return one.name == name; });
    if (rule != rules.end()) {
        apply(*rule, button);
    } else if (name == "up" || name == "down") {
        StyleArrowButton(button, name == "up");
    } else if (name.find("help") != std::string::npos) {
        StyleHelpButton(button);
    } else if (button.visible) {
        apply(otherButtons, button);
    }
}

}  // namespace

void ThemeButtonsIn(forms::Form& form) {
    for (forms::Control* control : form.controls()) {
        if (auto* button = dynamic_cast<forms::CommandButton*>(control)) themeButton(*button);
    }
}

}  // namespace furniture

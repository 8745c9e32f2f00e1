#include "furniture/button_styles.h"

#include "furniture/palette.h"

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

void StyleQuietButton(forms::CommandButton& button, std::string_view caption, double sizePt) {
    style(button, caption, palette::ThemeQuietButton, sizePt);
}

void StyleFlatButton(forms::CommandButton& button) {
    button.backColour = palette::ThemeAccentButton;
}

void StyleHelpButton(forms::CommandButton& button) {
    style(button, "?", palette::ThemeQuietButton, 8.25);
}

void StyleArrowButton(forms::CommandButton& button, Arrow arrow) {
    // The digits are the arrow glyphs of this font.
    style(button, arrow == Arrow::Up ? "5" : "6", palette::ThemeNeutralButton, 10);
    button.font.name = "Marlett";
    button.font.bold = false;
}

}  // namespace furniture

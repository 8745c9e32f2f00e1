#include "powerpoint/picture_styles_form.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "forms/desktop.h"
#include "furniture/theme.h"

namespace powerpoint {

namespace {

using forms::Twips;

constexpr Twips stylesWidth = 12300;
constexpr Twips stylesHeight = 5640;
constexpr Twips optionWidth = 1800;
constexpr Twips optionGap = 120;

struct Choice {
    std::string_view caption;
    std::string_view sample;
};

constexpr std::array<Choice, 6> choices = {
    {{"None", "icon:picture"},
     {"Shadow all around", "icon:picture-shadow-around"},
     {"Shadow ", "icon:picture-shadow"},
     {"Rounded corners", "icon:picture-rounded"},
     {"Reflection not rounded", "icon:picture-reflection"},
     {"Reflection rounded", "icon:picture-reflection-rounded"}}};

forms::Place placeOf(int index) {
    const Twips left = 240 + (5 - index) * (optionWidth + optionGap);
    // Two lines of text, which the longer captions need once they are bold.
    return {left, 2640, optionWidth, 540};
}

std::array<forms::OptionButton, 6> optionsOf(forms::Form& form, forms::Frame& frame) {
    const auto option = [&](int index) {
        return forms::OptionButton(form, "OptionStyle", placeOf(index), &frame);
    };
    return {option(0), option(1), option(2), option(3), option(4), option(5)};
}

}  // namespace

PredefinedStyles::PredefinedStyles(forms::Desktop& theDesktop, session::PictureLook& chosen)
    : Form(theDesktop, "PredefinedStyles", stylesWidth, stylesHeight),
      TitelBar1(*this, "TitelBar1", {0, 0, stylesWidth, 420}),
      Image1(*this, "Image1", {240, 600, 360, 360}),
      Label1(*this, "Label1", {720, 660, 6000, 300}),
      Frame3(*this, "Frame3", {240, 1080, stylesWidth - 480, 3480}),
      Picture1(*this, "Picture1", {4110, 180, 3600, 2340}, &Frame3),
      OptionStyle(optionsOf(*this, Frame3)),
      Styles(*this, "Styles", {stylesWidth - 240 - 1920, 4860, 1920, 480}),
      chosen_(chosen) {
    caption = "Murvane";
    escapeCloses = true;
    TitelBar1.caption = "Murvane";
    Image1.setPicture({.bytes = {}, .drawing = "icon:powerpoint"});
    Label1.caption = "Pasting style";
    Label1.font = {.name = "Tahoma", .sizePt = 11, .bold = true};
    Label1.transparent = true;
    Frame3.accessibleName = Label1.caption;
    for (std::size_t i = 0; i < OptionStyle.size(); ++i) {
        OptionStyle.at(i).caption = choices.at(i).caption;
        OptionStyle.at(i).onClick = [this, i] { OptionStyle_Click(static_cast<int>(i)); };
    }
    Styles.caption = "Apply";
    Styles.isDefault = true;
    Styles.onClick = [this] { Styles_Click(); };
}

void PredefinedStyles::Form_Load() {
    topmost = true;
    shadow_.emplace().Shadow(*this);
    furniture::ApplyTheme(*this);
    for (forms::OptionButton& option : OptionStyle) option.startWith(false);
    OptionStyle.front().setValue(true);
}

void PredefinedStyles::OptionStyle_Click(int index) {
    chosen_ = static_cast<session::PictureLook>(index);
    const std::string_view sample = choices.at(static_cast<std::size_t>(index)).sample;
    Picture1.setPicture({.bytes = {}, .drawing = std::string(sample)});
    for (std::size_t i = 0; i < OptionStyle.size(); ++i) {
        OptionStyle.at(i).font.bold = static_cast<int>(i) == index;
    }
}

void PredefinedStyles::Styles_Click() {
    desktop().unload(*this);
}

}  // namespace powerpoint

#include "furniture/theme.h"

#include <array>
#include <cstddef>
#include <string_view>

#include "forms/controls.h"
#include "forms/list_view.h"
#include "furniture/button_styles.h"
#include "furniture/palette.h"
#include "furniture/title_bar.h"

namespace furniture {

namespace {

using forms::ControlClass;
using forms::sameFormName;

void paint(forms::Control& control, forms::Colour ground) {
    control.backColour = ground;
    control.foreColour = palette::ThemeText;
}

bool isSlidePanel(const forms::Control& control) {
    return sameFormName(control.name(), "SlideNb");
}

bool beginsWith(std::string_view name, std::string_view start) {
    return sameFormName(name.substr(0, start.size()), start);
}

/// Dark letters on a light ground, light ones on a dark ground.
forms::Colour readableOn(forms::Colour ground) {
    const int brightness = (ground.red * 299 + ground.green * 587 + ground.blue * 114) / 1000;
    return brightness > 127 ? forms::Colour{30, 41, 59} : palette::ThemeText;
}

/// The main form's list, which is light in the dark form.
void ThemeMainList(forms::ListView& list) {
    static constexpr std::size_t firstNamed = 1;
    static constexpr std::array<std::string_view, 3> captions = {"Sheet", "Slide", "Order"};
    list.backColour = palette::ThemeNeutralButton;
    list.foreColour = readableOn(palette::ThemeNeutralButton);
    list.gridLines = true;
    for (std::size_t i = 0; i < captions.size(); ++i) {
        if (firstNamed + i < list.columns.size()) list.columns[firstNamed + i].text = captions[i];
    }
}

void paintList(forms::ListView& list) {
    if (sameFormName(list.name(), "listCharts")) {
        ThemeMainList(list);
        return;
    }
    paint(list, palette::ThemeField);
    list.gridLines = true;
}

void paintText(forms::TextBox& text) {
    paint(text, palette::ThemeField);
    text.hasBorder = true;
}

void ThemeControl(forms::Control& control) {
    if (sameFormName(control.name(), "imgChart") || beginsWith(control.name(), "titelbar")) return;
    switch (control.controlClass()) {
        case ControlClass::Frame:
            if (!isSlidePanel(control)) paint(control, palette::ThemeSurface);
            break;
        case ControlClass::Label:
            if (control.transparent) {
                control.foreColour = palette::ThemeText;
            } else {
                paint(control, palette::ThemeSurface);
            }
            break;
        case ControlClass::CheckBox:
        case ControlClass::OptionButton:
            paint(control, palette::ThemeSurface);
            break;
        case ControlClass::TextBox:
            paintText(dynamic_cast<forms::TextBox&>(control));
            break;
        case ControlClass::ListView:
            paintList(dynamic_cast<forms::ListView&>(control));
            break;
        case ControlClass::WebBrowser:
            ApplyBrowserBackground(dynamic_cast<forms::WebBrowser&>(control),
                                   palette::ThemeGroundText);
            break;
        default:
            break;
    }
}

/// All controls but the buttons, those in frames too. The frame `SlideNb` keeps what is in it for
/// `ThemeSlidePanel`.
void ThemeControlsIn(forms::Form& form, const forms::Frame* container) {
    for (forms::Control* control : form.controls()) {
        if (control->container() != container) continue;
        ThemeControl(*control);
        const auto* frame = dynamic_cast<const forms::Frame*>(control);
        if (frame != nullptr && !isSlidePanel(*frame)) ThemeControlsIn(form, frame);
    }
}

void ThemeTitleBars(forms::Form& form) {
    for (forms::Control* control : form.controls()) {
        auto* bar = dynamic_cast<TitleBar*>(control);
        if (bar == nullptr) continue;
        bar->backColour = palette::ThemeGroundDeep;
        bar->BackColorV1Begin = palette::ThemeGroundDeep;
        bar->BackColorV1End = palette::ThemeTitleMid;
        bar->BackColorV2Begin = palette::ThemeGround;
        bar->BackColorV2End = palette::ThemeGround;
        bar->foreColour = palette::ThemeText;
        bar->CaptionColor = palette::ThemeText;
        bar->BorderColorDarkLight = palette::ThemeText;
        bar->ShowClose = true;
        bar->ShowCloseEnabled = true;
        bar->ShowMinimized = false;
        bar->ShowMaximized = false;
    }
}

void ThemeSlidePanel(forms::Form& form) {
    forms::Control* panel = form.find("SlideNb");
    if (panel == nullptr) return;
    panel->backColour = palette::ThemeSurface;
    if (forms::Control* number = form.find("TextBox10")) paint(*number, palette::ThemeField);
    for (forms::Control* control : form.controls()) {
        if (control->container() != panel) continue;
        if (control->controlClass() != ControlClass::Label) continue;
        control->transparent = true;
        control->foreColour = palette::ThemeText;
    }
}

}  // namespace

void ApplyTheme(forms::Form& form) {
    form.backColour = palette::ThemeGround;
    ThemeControlsIn(form, nullptr);
    ThemeTitleBars(form);
    ThemeSlidePanel(form);
    ThemeButtonsIn(form);
}

void ApplyBrowserBackground(forms::WebBrowser& browser, std::string_view colour) {
    forms::BrowserView* document = browser.view;
    if (document == nullptr || !document->isComplete()) return;
    document->setStyle("background-color", colour);
    document->setStyle("height", "100%");
    document->setBodyStyle("margin", "0");
    document->setBodyStyle("padding", "0");
}

}  // namespace furniture

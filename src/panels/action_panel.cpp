#include "panels/action_panel.h"

#include "furniture/button_styles.h"
#include "furniture/palette.h"
#include "furniture/theme.h"
#include "office/text.h"
#include "panels/page_file.h"

namespace panels {

namespace {

using forms::Twips;
using forms::ZOrder;

constexpr Twips barHeight = 780;
constexpr Twips borderHeight = 15;
constexpr Twips footerHeight = 300;
constexpr Twips buttonHeight = 660;
constexpr Twips buttonWidth = 1560;
constexpr Twips margin = 180;
constexpr Twips browserMargin = 120;
constexpr Twips minimumBrowserHeight = 1500;

bool isShown(const forms::Control* control) {
    return control != nullptr && control->visible;
}

/// From the left margin rightwards, as far as there is anything.
void layOptionalControls(const ActionBar& parts, Twips buttonTop) {
    Twips left = margin;
    const bool hasCaption = isShown(parts.caption) && !office::trim(parts.caption->caption).empty();
    if (hasCaption) {
        parts.caption->place = {left, buttonTop + 240, 1200, 255};
        parts.caption->transparent = true;
        left += 1296;
    }
    bool hasExtraButton = false;
    for (forms::CommandButton* extra : parts.extraButtons) {
        if (!isShown(extra)) continue;
        extra->place = {left, buttonTop, 1080, buttonHeight};
        extra->setZOrder(ZOrder::Back);
        left += 1176;
        hasExtraButton = true;
    }
    if (parts.caption != nullptr && !hasCaption && !hasExtraButton) parts.caption->visible = false;
}

}  // namespace

void ShowActionPanel(session::Host& host, forms::WebBrowser& browser, const ActionPanel& panel) {
    NavigatePanelFile(host, browser, BuildActionPanelHtml(panel));
}

void NavigatePanelFile(session::Host& host, forms::WebBrowser& browser, std::string_view page) {
    navigateToPage(host, browser, "MurvaneDialogStatus.html", page);
}

std::string ReadFieldValue(const forms::WebBrowser& browser, std::string_view id,
                           std::string_view fallback) {
    if (browser.view == nullptr) return std::string(fallback);
    const auto value = browser.view->fieldValue(id);
    return std::string(value ? office::trim(*value) : fallback);
}

void SetupActionPanel(forms::Form& form, forms::WebBrowser& browser, const ActionBar& parts) {
    ActionBar withoutCaption = parts;
    withoutCaption.caption = nullptr;
    LayoutActionBar(form, withoutCaption);
    LayoutActionBrowser(form, browser, parts.bar, 720, 48, 0);
    furniture::ApplyTheme(form);
    // To the theme the border is a label like any other; as a line it has a colour of its own.
    if (parts.border != nullptr) parts.border->backColour = furniture::palette::ThemeBarLine;
    RestoreActionZOrder(browser, parts);
}

void LayoutActionBar(const forms::Form& form, const ActionBar& parts) {
    const Twips width = form.place.width;
    const bool hasFooter = isShown(parts.footer);
    const Twips footer = hasFooter ? footerHeight : 0;
    Twips top = form.place.height - barHeight - footer;
    Twips height = barHeight;
    if (parts.border != nullptr) {
        parts.border->place = {0, top, width, borderHeight};
        parts.border->backColour = furniture::palette::ThemeBarLine;
        parts.border->setZOrder(ZOrder::Back);
        top += borderHeight;
        height -= borderHeight;
    }
    parts.bar.place = {0, top, width, height};
    parts.bar.backColour = furniture::palette::ThemeSurface;
    parts.bar.setZOrder(ZOrder::Back);

    const Twips buttonTop = top + (height - buttonHeight) / 2;
    PlaceContinueButton(parts.button,
                        {width - margin - buttonWidth, buttonTop, buttonWidth, buttonHeight});
    layOptionalControls(parts, buttonTop);
    if (hasFooter) parts.footer->place = {0, form.place.height - footer, width, footer};
}

void LayoutActionBrowser(const forms::Form& form, forms::WebBrowser& browser,
                         const forms::Label& bar, Twips top, Twips gap, Twips maximumHeight) {
    Twips height = bar.place.top - top - gap;
    if (maximumHeight > 0 && height > maximumHeight) height = maximumHeight;
    if (height < minimumBrowserHeight) height = minimumBrowserHeight;
    browser.place = {browserMargin, top, form.place.width - 2 * browserMargin, height};
    browser.setZOrder(ZOrder::Front);
}

void PlaceContinueButton(forms::CommandButton& button, const forms::Place& place) {
    button.place = place;
    button.caption = "Continue  >";
    button.isDefault = true;
    button.font = {.name = "Tahoma", .sizePt = 10.5, .bold = true};
    furniture::StyleFlatButton(button);
    button.setZOrder(ZOrder::Back);
}

void RestoreActionZOrder(forms::WebBrowser& browser, const ActionBar& parts) {
    browser.setZOrder(ZOrder::Front);
    if (parts.border != nullptr) parts.border->setZOrder(ZOrder::Back);
    parts.bar.setZOrder(ZOrder::Back);
    for (forms::CommandButton* extra : parts.extraButtons) {
        if (isShown(extra)) extra->setZOrder(ZOrder::Back);
    }
    if (parts.button.visible) parts.button.setZOrder(ZOrder::Back);
}

}  // namespace panels

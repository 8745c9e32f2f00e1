#include "panels/action_panel.h"

#include <algorithm>

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
constexpr Twips buttonHeight = 660;
constexpr Twips buttonWidth = 1560;
constexpr Twips margin = 180;
constexpr Twips browserMargin = 120;
constexpr Twips minimumBrowserHeight = 1500;

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
    LayoutActionBar(form, parts);
    LayoutActionBrowser(form, browser, parts.bar, 720, 48);
    furniture::ApplyTheme(form);
    // To the theme the border is a label like any other; as a line it has a colour of its own.
    parts.border.backColour = furniture::palette::ThemeBarLine;
    RestoreActionZOrder(browser, parts);
}

void LayoutActionBar(const forms::Form& form, const ActionBar& parts) {
    const Twips width = form.place.width;
    const Twips top = form.place.height - barHeight + borderHeight;
    const Twips height = barHeight - borderHeight;
    parts.border.place = {0, top - borderHeight, width, borderHeight};
    parts.border.setZOrder(ZOrder::Back);
    parts.bar.place = {0, top, width, height};
    parts.bar.backColour = furniture::palette::ThemeSurface;
    parts.bar.setZOrder(ZOrder::Back);

    const Twips buttonTop = top + (height - buttonHeight) / 2;
    PlaceContinueButton(parts.button,
                        {width - margin - buttonWidth, buttonTop, buttonWidth, buttonHeight});
}

void LayoutActionBrowser(const forms::Form& form, forms::WebBrowser& browser,
                         const forms::Label& bar, Twips top, Twips gap) {
    const Twips height = std::max(bar.place.top - top - gap, minimumBrowserHeight);
    browser.place = {browserMargin, top, form.place.width - 2 * browserMargin, height};
    browser.setZOrder(ZOrder::Front);
}

void PlaceContinueButton(forms::CommandButton& button, const forms::Place& place) {
    button.place = place;
    button.isDefault = true;
    button.setZOrder(ZOrder::Back);
}

void RestoreActionZOrder(forms::WebBrowser& browser, const ActionBar& parts) {
    browser.setZOrder(ZOrder::Front);
    parts.border.setZOrder(ZOrder::Back);
    parts.bar.setZOrder(ZOrder::Back);
    if (parts.button.visible) parts.button.setZOrder(ZOrder::Back);
}

}  // namespace panels
